#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/CodePages.h"

namespace brennet {

// How the bytes of a file are to be read.
struct DetectedEncoding {
  enum class Source { Mark, Signature, Utf8Detection, Declaration, Ansi };

  Source source;
  platform::CodePage codePage;  // one that this system can convert
  std::u16string name;          // for the result log; "ANSI" if none is known
  std::size_t markLength;       // bytes of the byte-order mark, 0 without one
};

// Finds the name of the encoding that a document declares, in bytes of unknown encoding; empty if
// it declares none. How it is declared depends on the format of the document.
using DeclaredEncodingFinder = std::u16string (*)(std::string_view bytes);

// Detects the encoding of a document file from its whole content. The first of these decides:
// 1. a byte-order mark: UTF-8, UTF-16 or UTF-32;
// 2. the beginning of a markup text in UTF-16 without a mark;
// 3. all bytes reading as UTF-8 (a character that the end of the file cuts off does not count).
//    Short texts in a double-byte code page can do so by accident. If the document declares such a
//    code page and can be read in it, this decides only if there are a sequence of three or four
//    bytes and a pair outside the rows that national standards assign;
// 4. the encoding that the document declares, as `findDeclared` has it;
// 5. the system's ANSI code page. It also replaces an encoding that is unknown, that the system
// cannot convert, or that the bytes contradict.
// Time is linear in the bytes.
[[nodiscard]] DetectedEncoding detectEncoding(std::string_view bytes,
                                              DeclaredEncodingFinder findDeclared);

// `codePage`, or the ANSI code page if this system cannot convert it (0 included).
[[nodiscard]] platform::CodePage convertibleCodePage(platform::CodePage codePage);

}  // namespace brennet
