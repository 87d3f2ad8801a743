#include "model/SettingTable.h"

#include "brennet/HotkeyBlock.h"

namespace brennet {
namespace {

template <auto Member>
auto spanOf(HotkeyScheme& scheme) {
  return std::span((scheme.*Member).data(), (scheme.*Member).size());
}

constexpr std::array<std::uint16_t, kHeroSkills> kZeroToEleven = {0, 1, 2, 3, 4,  5,
                                                                  6, 7, 8, 9, 10, 11};

// `count` keys that stand side by side in the block.
template <std::size_t Count>
constexpr std::array<std::uint16_t, Count> consecutive(std::size_t first) {
  std::array<std::uint16_t, Count> offsets{};
  for (std::size_t i = 0; i < Count; ++i) {
    offsets[i] = static_cast<std::uint16_t>(first + i * sizeof(std::uint16_t));
  }
  return offsets;
}

// The command-card keys grew in three steps, and so did the record.
constexpr std::array<std::uint16_t, kHeroSkills> heroSkillOffsets() {
  std::array<std::uint16_t, kHeroSkills> offsets{};
  const auto first = consecutive<6>(offsetof(HotkeyBlock, heroSkillKeys0to5));
  const auto last = consecutive<5>(offsetof(HotkeyBlock, heroSkillKeys7to11));
  for (std::size_t i = 0; i < first.size(); ++i) offsets[i] = first[i];
  offsets[6] = offsetof(HotkeyBlock, heroSkillKey6);
  for (std::size_t i = 0; i < last.size(); ++i) offsets[7 + i] = last[i];
  return offsets;
}

constexpr auto kHeroSkillOffsets = heroSkillOffsets();
constexpr auto kItemOffsets = consecutive<kItemSlots>(offsetof(HotkeyBlock, itemKeys));
constexpr auto kMouseOffsets = consecutive<kMouseKeys>(offsetof(HotkeyBlock, mouseKeys));
constexpr std::array<std::uint16_t, kLedgerKeys> kLedgerOffsets = {
    offsetof(HotkeyBlock, ledgerKey0),
    offsetof(HotkeyBlock, ledgerKey1),
    offsetof(HotkeyBlock, ledgerKey2),
};

constexpr KeyListSetting kHeroSkillKeys = {
    .keys = spanOf<&HotkeyScheme::HeroSkillKey>,
    .ids = kZeroToEleven,
    .offsets = kHeroSkillOffsets,
    .autocast = spanOf<&HotkeyScheme::HeroSkillAutocast>,
};
constexpr KeyListSetting kItemKeys = {
    .keys = spanOf<&HotkeyScheme::ItemKey>,
    .ids = kItemSlotCodes,
    .offsets = kItemOffsets,
    .autocast = spanOf<&HotkeyScheme::ItemAutocast>,
    .followsPreset = true,
};
constexpr KeyListSetting kMouseKeyList = {
    .keys = spanOf<&HotkeyScheme::MouseKey>,
    .ids = std::span(kZeroToEleven).first<kMouseKeys>(),
    .offsets = kMouseOffsets,
};
constexpr KeyListSetting kLedgerKeyList = {
    .keys = spanOf<&HotkeyScheme::SecretaryKey>,
    .ids = std::span(kZeroToEleven).first<kLedgerKeys>(),
    .offsets = kLedgerOffsets,
};

constexpr SwitchSetting flagBit(std::uint8_t HotkeyScheme::*field, unsigned bit) {
  return {field, offsetof(HotkeyBlock, flags), static_cast<std::uint8_t>(1U << bit)};
}
constexpr SwitchSetting wholeByte(std::uint8_t HotkeyScheme::*field, std::size_t offset) {
  return {field, offset, SwitchSetting::kWholeByte};
}

// clang-format off
constexpr std::array<Setting, kSettingCount> kSettings = {{
    {u"ZoomValue", ByteSetting{&HotkeyScheme::ZoomValue, offsetof(HotkeyBlock, zoomValue)}},
    {u"HeroSkillKey", kHeroSkillKeys},
    {u"ItemKey", kItemKeys},
    {u"MouseKey", kMouseKeyList},
    {u"SecretaryKey", kLedgerKeyList},
    {u"DisableLWinFlag", flagBit(&HotkeyScheme::DisableLWinFlag, 0)},
    {u"LockMouseFlag", flagBit(&HotkeyScheme::LockMouseFlag, 1)},
    {u"ShowFBloodFlag", flagBit(&HotkeyScheme::ShowFBloodFlag, 2)},
    {u"ShowEBloodFlag", flagBit(&HotkeyScheme::ShowEBloodFlag, 3)},
    {u"ShowFManaFlag", flagBit(&HotkeyScheme::ShowFManaFlag, 7)},
    {u"ViewNoDragFlag", flagBit(&HotkeyScheme::ViewNoDragFlag, 4)},
    {u"StartJSQFlag", flagBit(&HotkeyScheme::StartJSQFlag, 5)},
    {u"HotKey", RemapSetting{offsetof(HotkeyBlock, keyRemaps)}},
    {u"ComboKey", ComboSetting{offsetof(HotkeyBlock, comboKeys)}},
    {u"ComboKey3to1", ComboSetting{offsetof(HotkeyBlock, comboKeys)}},
    {u"NumComboKeyIndex", PresetSetting{}},
    {u"ShowFBlood", KeySetting{&HotkeyScheme::ShowFBlood, offsetof(HotkeyBlock, showFBlood)}},
    {u"ShowEBlood", KeySetting{&HotkeyScheme::ShowEBlood, offsetof(HotkeyBlock, showEBlood)}},
    {u"HotkeyContrl", KeySetting{&HotkeyScheme::HotkeyContrl, offsetof(HotkeyBlock, hotkeyContrl)}},
    {u"WinLockMouse", KeySetting{&HotkeyScheme::WinLockMouse, offsetof(HotkeyBlock, winLockMouse)}},
    {u"QuickChatKey", KeySetting{&HotkeyScheme::QuickChatKey, offsetof(HotkeyBlock, quickChatKey)}},
    {u"QuickChatIndex", QuickChatSetSetting{offsetof(HotkeyBlock, quickChatIndex)}},
    {u"ChatWheelkey", KeySetting{&HotkeyScheme::ChatWheelkey, offsetof(HotkeyBlock, chatWheelKey)}},
    {u"QuickChat", PhraseSetting{&HotkeyScheme::QuickChat, offsetof(HotkeyBlock, quickChat),
                                 sizeof(HotkeyBlock::quickChat)}},
    {u"ChatWheel", PhraseSetting{&HotkeyScheme::ChatWheel, offsetof(HotkeyBlock, chatWheel),
                                 sizeof(HotkeyBlock::chatWheel)}},
    {u"HideUI", wholeByte(&HotkeyScheme::HideUI, offsetof(HotkeyBlock, hideUI))},
    {u"SkillHeroOnly", wholeByte(&HotkeyScheme::SkillHeroOnly, offsetof(HotkeyBlock, skillHeroOnly))},
    {u"CombokeyHeroOnly",
     wholeByte(&HotkeyScheme::CombokeyHeroOnly, offsetof(HotkeyBlock, combokeyHeroOnly))},
    {u"DisableLeftAlt",
     wholeByte(&HotkeyScheme::DisableLeftAlt, offsetof(HotkeyBlock, disableLeftAlt))},
    {u"DisableLeftAltShowHP",
     wholeByte(&HotkeyScheme::DisableLeftAltShowHP, offsetof(HotkeyBlock, disableLeftAltShowHP))},
}};
// clang-format on

using enum SettingId;

constexpr std::array<SettingId, kSettingCount> kLoadOrder = {
    ZoomValue,        HeroSkillKey,   MouseKey,         ItemKey,        SecretaryKey,
    DisableLWinFlag,  LockMouseFlag,  ShowFBloodFlag,   ShowEBloodFlag, ShowFManaFlag,
    HideUI,           SkillHeroOnly,  CombokeyHeroOnly, DisableLeftAlt, DisableLeftAltShowHP,
    ViewNoDragFlag,   StartJSQFlag,   HotKey,           ComboKey,       ComboKey3to1,
    NumComboKeyIndex, ShowFBlood,     ShowEBlood,       ChatWheelkey,   WinLockMouse,
    QuickChatKey,     QuickChatIndex, QuickChat,        ChatWheel,      HotkeyContrl,
};

constexpr SettingId kBlockOrder[] = {
    ZoomValue,      DisableLWinFlag,  LockMouseFlag,  ShowFBloodFlag,
    ShowEBloodFlag, ViewNoDragFlag,   StartJSQFlag,   ShowFManaFlag,
    HeroSkillKey,   ItemKey,          HotKey,         ComboKey,
    MouseKey,       SecretaryKey,     ShowFBlood,     ShowEBlood,
    HotkeyContrl,   WinLockMouse,     QuickChatKey,   ChatWheelkey,
    QuickChatIndex, QuickChat,        ChatWheel,      HideUI,
    SkillHeroOnly,  CombokeyHeroOnly, DisableLeftAlt, DisableLeftAltShowHP,
};

}  // namespace

std::span<const Setting, kSettingCount> settings() {
  return kSettings;
}

const Setting& setting(SettingId id) {
  return kSettings[static_cast<std::size_t>(id)];
}

std::span<const SettingId, kSettingCount> loadOrder() {
  return kLoadOrder;
}

std::span<const SettingId> blockOrder() {
  return kBlockOrder;
}

}  // namespace brennet
