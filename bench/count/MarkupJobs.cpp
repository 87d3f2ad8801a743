// Text in memory: code pages and markup. A size and its double tell how the work grows.

#include <cstdlib>
#include <string>

#include "bench/count/Count.h"
#include "bench/count/Jobs.h"
#include "bench/markup/SampleTexts.h"
#include "markup/MarkupDocument.h"
#include "markup/text/DoubleByteCodec.h"

namespace brennet::bench {
namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void countTexts(const char* parse, const char* decode, const char* encode, std::size_t units) {
  const SampleText text = sampleDocument("", units);
  DoubleByteCodec& codec = DoubleByteCodec::of(platform::kGb2312);
  countAgain(parse, [&] {
    MarkupDocument document;
    require(document.setDoc(text.utf16));
  });
  countAgain(decode, [&] {
    std::u16string decoded;
    codec.decode(text.gb2312, decoded);
    require(decoded.size() == text.utf16.size());
  });
  countAgain(encode, [&] {
    std::string encoded;
    require(!codec.encode(text.utf16, encoded));
  });
}

}  // namespace

void countMarkup() {
  constexpr std::size_t kUnits = std::size_t{1} << 18U;
  countTexts("parse 256 K", "decode 256 K", "encode 256 K", kUnits);
  countTexts("parse 512 K", "decode 512 K", "encode 512 K", 2 * kUnits);
}

}  // namespace brennet::bench
