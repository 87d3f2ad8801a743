#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "brennet/HotkeyBlock.h"
#include "model/HotkeyScheme.h"
#include "model/SettingKinds.h"

// The rows of keys that a scheme has, for the table of settings (SettingTable.h).
namespace brennet {
namespace detail {

template <auto Member>
constexpr auto spanOf(HotkeyScheme& scheme) {
  return std::span((scheme.*Member).data(), (scheme.*Member).size());
}

inline constexpr std::array<std::uint16_t, kHeroSkills> kZeroToEleven = {0, 1, 2, 3, 4,  5,
                                                                         6, 7, 8, 9, 10, 11};

// `count` keys side by side in the block.
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
  std::copy(first.begin(), first.end(), offsets.begin());
  offsets[6] = offsetof(HotkeyBlock, heroSkillKey6);
  std::copy(last.begin(), last.end(), offsets.begin() + 7);
  return offsets;
}

inline constexpr auto kHeroSkillOffsets = heroSkillOffsets();
inline constexpr auto kItemOffsets = consecutive<kItemSlots>(offsetof(HotkeyBlock, itemKeys));
inline constexpr auto kMouseOffsets = consecutive<kMouseKeys>(offsetof(HotkeyBlock, mouseKeys));
inline constexpr std::array<std::uint16_t, kLedgerKeys> kLedgerOffsets = {
    offsetof(HotkeyBlock, ledgerKey0),
    offsetof(HotkeyBlock, ledgerKey1),
    offsetof(HotkeyBlock, ledgerKey2),
};

}  // namespace detail

inline constexpr KeyListSetting kHeroSkillRow = {
    .keys = detail::spanOf<&HotkeyScheme::HeroSkillKey>,
    .keyNames = "hero skill %1",
    .ids = detail::kZeroToEleven,
    .offsets = detail::kHeroSkillOffsets,
    .autocast = detail::spanOf<&HotkeyScheme::HeroSkillAutocast>,
};
inline constexpr KeyListSetting kItemRow = {
    .keys = detail::spanOf<&HotkeyScheme::ItemKey>,
    .keyNames = "item %1",
    .ids = kItemSlotCodes,
    .offsets = detail::kItemOffsets,
    .autocast = detail::spanOf<&HotkeyScheme::ItemAutocast>,
    .followsPreset = true,
};
inline constexpr KeyListSetting kMouseRow = {
    .keys = detail::spanOf<&HotkeyScheme::MouseKey>,
    .keyNames = "wheel up|wheel click|wheel down",
    .ids = std::span(detail::kZeroToEleven).first<kMouseKeys>(),
    .offsets = detail::kMouseOffsets,
};
inline constexpr KeyListSetting kLedgerRow = {
    .keys = detail::spanOf<&HotkeyScheme::SecretaryKey>,
    .keyNames = "Ledger key %1",
    .ids = std::span(detail::kZeroToEleven).first<kLedgerKeys>(),
    .offsets = detail::kLedgerOffsets,
};

}  // namespace brennet
