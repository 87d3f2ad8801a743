// Any text as a document and for a second, naive parser: both find the same.
//
// Input: the text in UTF-8.

#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/Target.h"
#include "markup/text/Utf8.h"
#include "tests/markup/SameAsNaive.h"

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return markupGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::u16string text;
  brennet::utf8ToUtf16(brennet::fuzz::bytesOf(data, size), text);
  brennet::fuzz::require(brennet::test::differenceToNaive(text).empty());
  return 0;
}
