#pragma once

#include <filesystem>

namespace brennet::test {

// Writes what code page 936 makes of every byte and every pair, and of every UTF-16 unit, a line
// each, to the files "decode.txt" and "encode.txt" in `folder`.
void dumpCodePage936(const std::filesystem::path& folder);

}  // namespace brennet::test
