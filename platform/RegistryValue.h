#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace brennet::platform {

// The types of registry values that have a meaning here, by their numbers.
inline constexpr std::uint32_t kRegistryText = 1;
inline constexpr std::uint32_t kRegistryBinary = 3;
inline constexpr std::uint32_t kRegistryDword = 4;

// What a name in the registry holds: a type and bytes, which need not fit each other.
struct RegistryValue {
  std::uint32_t type = kRegistryBinary;
  std::string data;

  friend bool operator==(const RegistryValue&, const RegistryValue&) = default;
};

// `number` as a value of that type (dword), in four bytes, lowest first.
[[nodiscard]] inline RegistryValue dwordValue(std::uint32_t number) {
  RegistryValue value{kRegistryDword, std::string(4, '\0')};
  for (unsigned i = 0; i < 4; ++i) value.data[i] = static_cast<char>(number >> 8 * i & 0xFFU);
  return value;
}

// The number in the four bytes of `value`, lowest first; nothing if there are not four.
[[nodiscard]] inline std::optional<std::uint32_t> fourBytesIn(const RegistryValue& value) {
  if (value.data.size() != 4) return std::nullopt;
  std::uint32_t number = 0;
  for (unsigned i = 0; i < 4; ++i) {
    number |= std::uint32_t{static_cast<unsigned char>(value.data[i])} << 8 * i;
  }
  return number;
}

// The number in `value`; nothing if its type or length is not that of a number.
[[nodiscard]] inline std::optional<std::uint32_t> numberIn(const RegistryValue& value) {
  return value.type == kRegistryDword ? fourBytesIn(value) : std::nullopt;
}

}  // namespace brennet::platform
