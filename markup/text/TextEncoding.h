#pragma once

#include <string>
#include <string_view>

#include "markup/text/TextForm.h"
#include "markup/text/TextLog.h"

namespace brennet {

// The bytes of a document file that holds `text` in the encoding called `encoding`; the system's
// ANSI code page if that is unknown or cannot be converted here.
//
// A text that was read from a file in the same encoding (`form`) keeps that file's byte order and
// has a byte-order mark if the file had one. Any other text gets one in UTF-16 and UTF-32 only.
// Logs "converted_from" and, when a character had no representation, "conversion_loss"; UTF-16 is
// not converted, but "endian_swap" is logged when its bytes are swapped. Throws std::bad_alloc.
[[nodiscard]] std::string encodeText(std::u16string_view text, std::u16string_view encoding,
                                     TextLog& log, const TextForm& form = {});

}  // namespace brennet
