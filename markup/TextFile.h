#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "markup/ResultLog.h"
#include "markup/TextDecoding.h"
#include "markup/TextForm.h"

namespace brennet {

// Reads the file at `path` into `text`: finds out its encoding (see EncodingDetection.h) and
// converts the whole content to UTF-16, block by block (see TextDecoding.h). Appends to `log` what
// it did. `form`, if given, receives how the text was written in the file.
//
// Returns false when the file cannot be read; then "file_error" is logged and `text` and `form`
// are left as they are. What cannot be converted is no failure. Throws std::bad_alloc.
bool readTextFile(std::u16string_view path, std::u16string& text, ResultLog& log,
                  std::size_t blockSize = kReadBlockSize, TextForm* form = nullptr);

// Makes `text`, converted to `encoding`, the content of the file at `path` (see TextEncoding.h).
// The disk holds the whole old or the whole new content at every moment. `form` is the one that
// reading gave, so that a file keeps its byte-order mark and its byte order.
//
// Returns false when the file cannot be written; then "file_error" is logged and the old content
// stands. Characters that `encoding` lacks are no failure ("conversion_loss" is logged).
bool writeTextFile(std::u16string_view path, std::u16string_view text, std::u16string_view encoding,
                   ResultLog& log, const TextForm& form = {});

}  // namespace brennet
