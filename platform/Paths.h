#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brennet::platform {

// A file name in the form that this system's file calls take: UTF-16 on Windows, bytes elsewhere.
// Only the value type of std::filesystem is used; Files.h reports errors without exceptions.
using Path = std::filesystem::path;

// `name` as a path. Unpaired surrogates name no file except on Windows; elsewhere they become
// U+FFFD.
[[nodiscard]] Path pathFromUtf16(std::u16string_view name);

// `name` as a path: text in the ANSI code page on Windows, plain bytes elsewhere.
[[nodiscard]] Path pathFromNarrow(std::string_view name);

}  // namespace brennet::platform
