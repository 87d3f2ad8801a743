#pragma once

#include <cstdint>
#include <system_error>

// What the errors of the file functions (Files.h) say.
namespace brennet::platform {

// There is no such file, or no folder for it.
[[nodiscard]] bool isMissing(const std::error_code& error);

// The file has more bytes than the caller allowed, or than can be written in place.
[[nodiscard]] bool isTooLarge(const std::error_code& error);

// A limit of bytes that no file exceeds.
inline constexpr std::uint64_t kAnySize = ~std::uint64_t{0};

}  // namespace brennet::platform
