#pragma once

// sketch
#include <cstddef>
#include <string>
#include <string_view>

#include "markup/ResultLog.h"

namespace brennet {

inline constexpr std::size_t kReadBlockSize = std::size_t{1} << 20U;

bool readTextFile(std::u16string_view path, std::u16string& text, ResultLog& log, std::size_t blockSize = kReadBlockSize);
bool writeTextFile(std::u16string_view path, std::u16string_view text, std::u16string_view encoding, ResultLog& log);

}  // namespace brennet
