#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brennet::platform {

// A file name in the form that this system's file calls take: UTF-16 on Windows, bytes elsewhere.
// Of std::filesystem only what reports errors without exceptions is used.
using Path = std::filesystem::path;

// `name` as a path. Unpaired surrogates name no file elsewhere than on Windows; they become U+FFFD.
[[nodiscard]] Path pathFromUtf16(std::u16string_view name);

// `name` as a path: text in the ANSI code page on Windows, bytes taken as they are elsewhere.
[[nodiscard]] Path pathFromNarrow(std::string_view name);

}  // namespace brennet::platform
