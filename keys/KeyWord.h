#pragma once

#include <cstdint>

namespace brennet {

// A key with its modifiers, as it is stored in the settings file and handed to the game.
//
// 16 bits: the high byte is a Windows virtual-key code (0xFF: no key), the low byte holds the
// modifiers below. The raw value is the wire format; everything else goes through the accessors.
class KeyWord {
 public:
  static constexpr std::uint8_t kShift = 0x01;
  static constexpr std::uint8_t kCtrl = 0x02;
  static constexpr std::uint8_t kAlt = 0x04;
  // The quick-cast mark, which has a meaning only inside a HotkeyBlock.
  static constexpr std::uint8_t kQuickCast = 0x08;
  static constexpr std::uint8_t kModifiers = kShift | kCtrl | kAlt;

  // No key.
  constexpr KeyWord() = default;
  constexpr explicit KeyWord(std::uint16_t raw) : raw_(raw) {}
  constexpr KeyWord(std::uint8_t virtualKey, std::uint8_t flags)
      : raw_(static_cast<std::uint16_t>(virtualKey << 8U | flags)) {}

  [[nodiscard]] constexpr std::uint16_t raw() const { return raw_; }
  [[nodiscard]] constexpr std::uint8_t virtualKey() const {
    return static_cast<std::uint8_t>(raw_ >> 8U);
  }
  [[nodiscard]] constexpr std::uint8_t modifiers() const {
    return static_cast<std::uint8_t>(raw_ & kModifiers);
  }
  [[nodiscard]] constexpr bool quickCast() const { return (raw_ & kQuickCast) != 0; }
  // Whether a key is set; the modifiers alone are no key.
  [[nodiscard]] constexpr bool isSet() const { return virtualKey() != 0xFF; }

  // The same key: equal virtual-key codes and equal modifiers. The quick-cast mark and the unused
  // bits do not count.
  [[nodiscard]] constexpr bool sameKey(KeyWord other) const {
    return ((raw_ ^ other.raw_) & (0xFF00U | kModifiers)) == 0;
  }

  [[nodiscard]] constexpr KeyWord with(std::uint8_t flags) const {
    return KeyWord(static_cast<std::uint16_t>(raw_ | flags));
  }
  [[nodiscard]] constexpr KeyWord without(std::uint8_t flags) const {
    return KeyWord(static_cast<std::uint16_t>(raw_ & ~flags));
  }

  // Equal in every bit; conflicts are decided by sameKey().
  friend constexpr bool operator==(KeyWord, KeyWord) = default;

 private:
  std::uint16_t raw_ = 0xFF00;
};

inline constexpr KeyWord kNoKey{};

}  // namespace brennet
