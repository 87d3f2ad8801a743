#pragma once

#include <ostream>

#include "keys/KeyWord.h"

// Keys that the tests of the model bind, and how a failing test shows them.

namespace brennet {

inline void PrintTo(KeyWord key, std::ostream* out) {
  *out << "0x" << std::hex << key.raw() << std::dec;
}

namespace test {

inline constexpr KeyWord kQ('Q', 0);
inline constexpr KeyWord kW('W', 0);
inline constexpr KeyWord kE('E', 0);
inline constexpr KeyWord kR('R', 0);
inline constexpr KeyWord kAltQ('Q', KeyWord::kAlt);
inline constexpr KeyWord kAltW('W', KeyWord::kAlt);
inline constexpr KeyWord kAlt1('1', KeyWord::kAlt);
inline constexpr KeyWord kAltF1(0x70, KeyWord::kAlt);
inline constexpr KeyWord kCtrlQ('Q', KeyWord::kCtrl);

constexpr std::uint32_t remap(KeyWord src, KeyWord dest) {
  return static_cast<std::uint32_t>(src.raw()) << 16U | dest.raw();
}
// Two keys as SetComboKeys takes them, the first in the low half.
constexpr std::uint32_t keyPair(KeyWord first, KeyWord second) {
  return remap(second, first);
}

}  // namespace test
}  // namespace brennet
