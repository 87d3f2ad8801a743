#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "markup/text/EncodingDetection.h"
#include "markup/text/TextForm.h"
#include "markup/text/TextLog.h"

namespace brennet {

// How many bytes of a file are converted at a time.
inline constexpr std::size_t kReadBlockSize = std::size_t{1} << 20U;

struct DecodedText {
  std::u16string text;
  TextForm form;
};

// The text of the whole content of a document file, whose encoding is detected (see
// EncodingDetection.h).
//
// The bytes are taken in blocks of `blockSize` (at least 1). Of each block, "read" is logged with
// its length in units of the encoding; zero units are removed ("nulls_removed"); bytes of a
// character that the block cuts off go to the next block ("read" again, with the corrected
// length); then it is converted ("converted_to"). If the end of a block cannot be examined in the
// code page, "truncation_error" is logged and the block takes all the rest. The text is the same
// for every block size. A character that the end of the file cuts off, like any other invalid
// bytes, becomes the system's default character or U+FFFD. Throws std::bad_alloc.
[[nodiscard]] DecodedText decodeText(std::string_view bytes, DeclaredEncodingFinder findDeclared,
                                     TextLog& log, std::size_t blockSize = kReadBlockSize);

}  // namespace brennet
