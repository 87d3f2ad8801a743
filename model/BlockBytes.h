#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "brennet/HotkeyBlock.h"
#include "keys/KeyWord.h"

namespace brennet {

// A HotkeyBlock as the bytes of its wire format, for access to fields by their offsets.

using BlockBytes = std::span<unsigned char, sizeof(HotkeyBlock)>;
using ConstBlockBytes = std::span<const unsigned char, sizeof(HotkeyBlock)>;

[[nodiscard]] inline BlockBytes bytesOf(HotkeyBlock& block) {
  return BlockBytes(reinterpret_cast<unsigned char*>(&block), sizeof(block));
}
[[nodiscard]] inline ConstBlockBytes bytesOf(const HotkeyBlock& block) {
  return ConstBlockBytes(reinterpret_cast<const unsigned char*>(&block), sizeof(block));
}

[[nodiscard]] inline std::uint16_t load16(ConstBlockBytes bytes, std::size_t offset) {
  return static_cast<std::uint16_t>(bytes[offset] | bytes[offset + 1] << 8U);
}
inline void store16(BlockBytes bytes, std::size_t offset, std::uint16_t value) {
  bytes[offset] = static_cast<unsigned char>(value & 0xFFU);
  bytes[offset + 1] = static_cast<unsigned char>(value >> 8U);
}

// The two halves of a key remap: the low one, the key sent, comes first.
inline constexpr std::size_t kRemapDest = 0;
inline constexpr std::size_t kRemapSrc = 2;
inline constexpr std::size_t kRemapSize = 4;

// The bit of HotkeyBlock::flags that holds the global switch.
inline constexpr std::uint32_t kEnableFlag = 0x80000000U;

}  // namespace brennet
