#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "brennet/HotkeyBlock.h"
#include "model/HotkeyScheme.h"
#include "model/KeyLists.h"
#include "model/SettingKinds.h"

// The settings of a scheme, one row each. Everything that handles all of them walks the rows: reset
// and assignment (SchemeAssignment.h), loading and saving (SchemeReader.h, SchemeWriter.h), filling
// a block and taking one back (BlockFiller.h, BlockMerger.h), and the search for who has a key
// (KeyConflicts.h). A new setting is a member of HotkeyScheme with its default, a number in
// SettingId and a row here.
namespace brennet {

// In the order in which they are written to the settings file and assigned, and also the index of
// the row in kSettings.
enum class SettingId : std::uint8_t {
  ZoomValue,
  HeroSkillKey,
  ItemKey,
  MouseKey,
  SecretaryKey,
  DisableLWinFlag,
  LockMouseFlag,
  ShowFBloodFlag,
  ShowEBloodFlag,
  ShowFManaFlag,
  ViewNoDragFlag,
  StartJSQFlag,
  HotKey,
  ComboKey,
  ComboKey3to1,
  NumComboKeyIndex,
  ShowFBlood,
  ShowEBlood,
  HotkeyContrl,
  WinLockMouse,
  QuickChatKey,
  QuickChatIndex,
  ChatWheelkey,
  QuickChat,
  ChatWheel,
  HideUI,
  SkillHeroOnly,
  CombokeyHeroOnly,
  DisableLeftAlt,
  DisableLeftAltShowHP,
};

inline constexpr std::size_t kSettingCount =
    static_cast<std::size_t>(SettingId::DisableLeftAltShowHP) + 1;

// What a setting means for a key that is to be bound.
enum class KeyRole : std::uint8_t {
  None,         // it holds no keys, or only those of another row
  PressedOnly,  // its keys are used; others may have them all the same
  Guarded,      // no other setting may have the key that it sends or waits for
};

// What a reset of the scheme does to a setting. Quick-cast marks always stay.
enum class OnReset : std::uint8_t { Default, Stays };

// The rank of a setting that is not in the block: it shows in others, or the record has no place.
inline constexpr int kNotInBlock = 0;

struct Setting {
  SettingId id;
  std::u16string_view element;  // what it is called in the settings file
  SettingKind kind;             // with the member that holds it and its place in the block
  // Its ranks in reading a settings file and in merging a returned block: any number between those
  // of its neighbours. Of two equal keys, the earlier one stays.
  int loadRank;
  int blockRank;
  KeyRole role = KeyRole::None;
  OnReset onReset = OnReset::Default;
};

namespace detail {

constexpr SwitchSetting flagBit(std::uint8_t HotkeyScheme::*field, unsigned bit) {
  return {field, offsetof(HotkeyBlock, flags), static_cast<std::uint8_t>(1U << bit)};
}
constexpr SwitchSetting wholeByte(std::uint8_t HotkeyScheme::*field, std::size_t offset) {
  return {field, offset, SwitchSetting::kWholeByte};
}

using enum SettingId;
using enum KeyRole;
using Scheme = HotkeyScheme;
using Block = HotkeyBlock;
inline constexpr auto kStays = OnReset::Stays;
inline constexpr std::string_view kComboNames =
    "combination key A|combination key B|combination key C|combination key D";

// clang-format off
inline constexpr std::array<Setting, kSettingCount> kSettings = {{
    {ZoomValue, u"ZoomValue",
     ByteSetting{&Scheme::ZoomValue, offsetof(Block, zoomValue)}, 10, 10},

    {HeroSkillKey, u"HeroSkillKey", kHeroSkillRow, 20, 90, Guarded},
    {ItemKey, u"ItemKey", kItemRow, 40, 100, Guarded},
    {MouseKey, u"MouseKey", kMouseRow, 30, 130, PressedOnly},
    {SecretaryKey, u"SecretaryKey", kLedgerRow, 50, 140, Guarded},

    {DisableLWinFlag, u"DisableLWinFlag", flagBit(&Scheme::DisableLWinFlag, 0), 60, 20},
    {LockMouseFlag, u"LockMouseFlag", flagBit(&Scheme::LockMouseFlag, 1), 70, 30},
    {ShowFBloodFlag, u"ShowFBloodFlag", flagBit(&Scheme::ShowFBloodFlag, 2), 80, 40},
    {ShowEBloodFlag, u"ShowEBloodFlag", flagBit(&Scheme::ShowEBloodFlag, 3), 90, 50},
    {ShowFManaFlag, u"ShowFManaFlag", flagBit(&Scheme::ShowFManaFlag, 7), 100, 80},
    {ViewNoDragFlag, u"ViewNoDragFlag", flagBit(&Scheme::ViewNoDragFlag, 4), 160, 60},
    {StartJSQFlag, u"StartJSQFlag", flagBit(&Scheme::StartJSQFlag, 5), 170, 70},

    {HotKey, u"HotKey",
     RemapSetting{&Scheme::HotKey, offsetof(Block, keyRemaps),
                  "source of remap %1|target of remap %1"}, 180, 110, Guarded},
    {ComboKey, u"ComboKey",
     ComboSetting{&Scheme::ComboKey, offsetof(Block, comboKeys), kComboNames}, 190, 120, Guarded},
    {ComboKey3to1, u"ComboKey3to1",  // the same keys once more
     ComboSetting{&Scheme::ComboKey, offsetof(Block, comboKeys), kComboNames}, 200, kNotInBlock},
    {NumComboKeyIndex, u"NumComboKeyIndex",
     PresetSetting{&Scheme::NumComboKeyIndex}, 210, kNotInBlock},

    {ShowFBlood, u"ShowFBlood",
     KeySetting{&Scheme::ShowFBlood, offsetof(Block, showFBlood), "allied health bars"},
     220, 150, Guarded},
    {ShowEBlood, u"ShowEBlood",
     KeySetting{&Scheme::ShowEBlood, offsetof(Block, showEBlood), "enemy health bars"},
     230, 160, Guarded},
    {HotkeyContrl, u"HotkeyContrl",
     KeySetting{&Scheme::HotkeyContrl, offsetof(Block, hotkeyContrl), "hotkeys on and off"},
     300, 170, Guarded},
    {WinLockMouse, u"WinLockMouse",
     KeySetting{&Scheme::WinLockMouse, offsetof(Block, winLockMouse), "cursor lock"},
     250, 180, Guarded},
    {QuickChatKey, u"QuickChatKey",
     KeySetting{&Scheme::QuickChatKey, offsetof(Block, quickChatKey), "quick chat"},
     260, 190, Guarded},
    {QuickChatIndex, u"QuickChatIndex",
     QuickChatSetSetting{&Scheme::QuickChatIndex, offsetof(Block, quickChatIndex)}, 270, 210},
    {ChatWheelkey, u"ChatWheelkey",
     KeySetting{&Scheme::ChatWheelkey, offsetof(Block, chatWheelKey), "chat wheel"},
     240, 200, Guarded},

    {QuickChat, u"QuickChat",
     PhraseSetting{&Scheme::QuickChat, offsetof(Block, quickChat), sizeof(Block::quickChat)},
     280, 220, KeyRole::None, kStays},
    {ChatWheel, u"ChatWheel",
     PhraseSetting{&Scheme::ChatWheel, offsetof(Block, chatWheel), sizeof(Block::chatWheel)},
     290, 230},

    {HideUI, u"HideUI",
     wholeByte(&Scheme::HideUI, offsetof(Block, hideUI)), 110, 240},
    {SkillHeroOnly, u"SkillHeroOnly",
     wholeByte(&Scheme::SkillHeroOnly, offsetof(Block, skillHeroOnly)), 120, 250},
    {CombokeyHeroOnly, u"CombokeyHeroOnly",
     wholeByte(&Scheme::CombokeyHeroOnly, offsetof(Block, combokeyHeroOnly)), 130, 260},
    {DisableLeftAlt, u"DisableLeftAlt",
     wholeByte(&Scheme::DisableLeftAlt, offsetof(Block, disableLeftAlt)),
     140, 270, KeyRole::None, kStays},
    {DisableLeftAltShowHP, u"DisableLeftAltShowHP",
     wholeByte(&Scheme::DisableLeftAltShowHP, offsetof(Block, disableLeftAltShowHP)),
     150, 280, KeyRole::None, kStays},
}};
// clang-format on

}  // namespace detail

using detail::kSettings;

[[nodiscard]] constexpr const Setting& setting(SettingId id) {
  return kSettings[static_cast<std::size_t>(id)];
}

// The kind of a row, as the type that it is.
template <SettingId Id>
inline constexpr const auto& kKindOf = std::get<setting(Id).kind.index()>(setting(Id).kind);

namespace detail {

// The settings that have a rank, in the order of the ranks.
template <int Setting::*Rank>
constexpr auto rankedBy() {
  constexpr auto isRanked = [](const Setting& row) { return row.*Rank != kNotInBlock; };
  constexpr auto kCount = std::count_if(kSettings.begin(), kSettings.end(), isRanked);
  std::array<SettingId, static_cast<std::size_t>(kCount)> order{};
  std::size_t n = 0;
  for (const Setting& row : kSettings) {
    if (isRanked(row)) order[n++] = row.id;
  }
  std::sort(order.begin(), order.end(),
            [](SettingId a, SettingId b) { return setting(a).*Rank < setting(b).*Rank; });
  return order;
}

template <int Setting::*Rank, std::size_t Count>
constexpr bool areRanksDistinct(const std::array<SettingId, Count>& order) {
  return std::adjacent_find(order.begin(), order.end(), [](SettingId a, SettingId b) {
           return setting(a).*Rank == setting(b).*Rank;
         }) == order.end();
}

constexpr bool areRowsNumbered() {
  for (std::size_t i = 0; i < kSettings.size(); ++i) {
    if (kSettings[i].id != static_cast<SettingId>(i)) return false;
  }
  return true;
}

}  // namespace detail

// The order in which a file is read: a key that is read earlier wins a conflict.
inline constexpr auto kLoadOrder = detail::rankedBy<&Setting::loadRank>();

// The settings that a HotkeyBlock carries, in the order in which a returned block is merged.
inline constexpr auto kBlockOrder = detail::rankedBy<&Setting::blockRank>();

static_assert(detail::areRowsNumbered(), "put the rows of the table in the order of SettingId");
static_assert(kLoadOrder.size() == kSettingCount, "give every setting a load rank");
static_assert(detail::areRanksDistinct<&Setting::loadRank>(kLoadOrder),
              "give the new setting a load rank between those of its neighbours");
static_assert(detail::areRanksDistinct<&Setting::blockRank>(kBlockOrder),
              "give the new setting a block rank between those of its neighbours");

// Calls `visit` for each row, in their order, with its SettingId as a constant, so that code can be
// chosen at compile time by what the row says.
template <class Visit>
constexpr void forEachSetting(Visit visit) {
  [&]<std::size_t... Rows>(std::index_sequence<Rows...>) {
    (visit(std::integral_constant<SettingId, static_cast<SettingId>(Rows)>()), ...);
  }
  (std::make_index_sequence<kSettingCount>());
}

}  // namespace brennet
