#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "keys/KeyWord.h"
#include "model/FixedKeys.h"

namespace brennet {

inline constexpr int kHeroSkills = 12;
inline constexpr int kMouseKeys = 3;
inline constexpr int kLedgerKeys = 3;
inline constexpr int kKeyRemaps = 6;
inline constexpr int kPhrases = 8;
inline constexpr std::size_t kPhraseUnits = 42;

// One key sent instead of another. The 32-bit form holds the source in its high half.
struct KeyRemap {
  KeyWord Src;
  KeyWord Dest;

  constexpr KeyRemap() = default;
  constexpr KeyRemap(KeyWord src, KeyWord dest) : Src(src), Dest(dest) {}
  constexpr explicit KeyRemap(std::uint32_t srcDest)
      : Src(static_cast<std::uint16_t>(srcDest >> 16U)),
        Dest(static_cast<std::uint16_t>(srcDest & 0xFFFFU)) {}

  [[nodiscard]] constexpr std::uint32_t raw() const {
    return static_cast<std::uint32_t>(Src.raw()) << 16U | Dest.raw();
  }
  friend constexpr bool operator==(const KeyRemap&, const KeyRemap&) = default;
};

// Pressing A, B and C together sends D.
struct ComboKeys {
  KeyWord Key_A;
  KeyWord Key_B;
  KeyWord Key_C;
  KeyWord Key_D;

  friend constexpr bool operator==(const ComboKeys&, const ComboKeys&) = default;
};

// Quick-cast marks and phrases may never have been set: an absent mark reads as false and an absent
// phrase as empty. An absent phrase is not written to the settings file.
template <std::size_t Count>
using AutocastMarks = std::array<std::optional<bool>, Count>;
using Phrases = std::array<std::optional<std::u16string>, kPhrases>;

// One of the player's three setting groups. A new scheme holds the defaults: no key anywhere.
// The members carry the names of the elements that hold them in the settings file.
struct HotkeyScheme {
  // NumComboKeyIndex: the item keys are those of ItemKey, or one of the three presets 0 to 2.
  static constexpr std::int32_t kItemKeysFromMap = -1;

  std::array<KeyWord, kHeroSkills> HeroSkillKey;  // command-card positions
  AutocastMarks<kHeroSkills> HeroSkillAutocast;
  std::array<KeyWord, kItemSlots> ItemKey;  // in the order of kItemSlotCodes
  AutocastMarks<kItemSlots> ItemAutocast;
  std::array<KeyWord, kMouseKeys> MouseKey;       // wheel up, wheel click, wheel down
  std::array<KeyWord, kLedgerKeys> SecretaryKey;  // Ledger panel: open/close, data, skill reminder
  std::array<KeyRemap, kKeyRemaps> HotKey;
  ComboKeys ComboKey;
  std::int32_t NumComboKeyIndex = kItemKeysFromMap;

  KeyWord ShowFBlood;                // shows allied health bars
  KeyWord ShowEBlood;                // shows enemy health bars
  KeyWord HotkeyContrl;              // switches the hotkeys on and off in game
  KeyWord WinLockMouse;              // toggles the cursor lock in windowed mode
  KeyWord QuickChatKey;              // opens quick chat
  KeyWord ChatWheelkey;              // opens the chat wheel
  std::uint32_t QuickChatIndex = 1;  // into kQuickChatKeySets

  Phrases QuickChat;
  Phrases ChatWheel = emptyPhrases();

  std::uint8_t ZoomValue = 100;  // per cent; edited in game only

  // Switches, 0 or 1.
  std::uint8_t DisableLWinFlag = 0;
  std::uint8_t LockMouseFlag = 0;
  std::uint8_t ShowFBloodFlag = 0;
  std::uint8_t ShowEBloodFlag = 0;
  std::uint8_t ShowFManaFlag = 0;
  std::uint8_t ViewNoDragFlag = 0;
  std::uint8_t StartJSQFlag = 0;
  std::uint8_t HideUI = 0;
  std::uint8_t SkillHeroOnly = 0;
  std::uint8_t CombokeyHeroOnly = 0;
  std::uint8_t DisableLeftAlt = 0;
  std::uint8_t DisableLeftAltShowHP = 0;

  friend bool operator==(const HotkeyScheme&, const HotkeyScheme&) = default;

 private:
  static Phrases emptyPhrases();
};

// The slot's index in HotkeyScheme::ItemKey, or nothing for a code that is not an inventory slot.
[[nodiscard]] std::optional<std::size_t> itemSlotIndex(int slotCode);

// Makes phrases that were never set empty.
void fillAbsent(Phrases& phrases);

// The first kPhraseUnits units of `text`, or one less where that would cut a character in two.
[[nodiscard]] std::u16string_view cutPhrase(std::u16string_view text);

}  // namespace brennet
