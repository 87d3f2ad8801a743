#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "markup/text/TextDecoding.h"
#include "markup/text/TextForm.h"
#include "markup/text/TextLog.h"
#include "platform/Files.h"

namespace brennet {

// The largest file that is read, in bytes. A settings file has some 20 KiB; a larger one than this
// is not worth the host's time and memory.
inline constexpr std::uint64_t kLargestTextFile = 64U << 20U;

// Reads the file at `path` into `text`: detects its encoding (see EncodingDetection.h) and converts
// the whole content to UTF-16, block by block (see TextDecoding.h). Appends to `log` what it did.
// `form`, if given, receives how the text was written in the file.
//
// Returns false when the file cannot be read or is larger than kLargestTextFile; then "file_error"
// is logged and `text` and `form` are left as they are. What cannot be converted is not a failure.
// Throws std::bad_alloc.
bool readTextFile(std::u16string_view path, DeclaredEncodingFinder findDeclared,
                  std::u16string& text, TextLog& log, std::size_t blockSize = kReadBlockSize,
                  TextForm* form = nullptr);

// Makes `text`, converted to `encoding`, the content of the file at `path` (see TextEncoding.h).
// The disk holds the whole old or the whole new content at every moment. `form` is the one that
// reading returned, so that a file keeps its byte-order mark and its byte order. `old` says what
// happens to the content that is replaced.
//
// Returns false when the file cannot be written; then "file_error" is logged and the old content
// stays. Characters that `encoding` lacks are not a failure ("conversion_loss" is logged).
bool writeTextFile(std::u16string_view path, std::u16string_view text, std::u16string_view encoding,
                   TextLog& log, const TextForm& form = {},
                   platform::OldContent old = platform::OldContent::Drop);

}  // namespace brennet
