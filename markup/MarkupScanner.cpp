#include "markup/MarkupScanner.h"

#include <algorithm>
#include <array>

#include "markup/Sse2.h"

namespace brennet {
namespace {

struct FoundBits {
  std::uint64_t less = 0;
  std::uint64_t tagStop = 0;
};

#if BRENNET_HAS_SSE2

// Looks at 64 units, 16 at a time. Packing with saturation turns units of 256 and more into 0 or
// 255, neither of which is looked for.
FoundBits findBits(const char16_t* units) {
  const __m128i less = _mm_set1_epi8('<');
  const __m128i greater = _mm_set1_epi8('>');
  const __m128i quote = _mm_set1_epi8('"');
  const __m128i apostrophe = _mm_set1_epi8('\'');
  FoundBits bits;
  for (unsigned at = 0; at < 64; at += 16) {
    const auto* source = reinterpret_cast<const __m128i*>(units + at);
    const __m128i bytes = _mm_packus_epi16(_mm_loadu_si128(source), _mm_loadu_si128(source + 1));
    const __m128i quotes =
        _mm_or_si128(_mm_cmpeq_epi8(bytes, quote), _mm_cmpeq_epi8(bytes, apostrophe));
    const __m128i stops = _mm_or_si128(quotes, _mm_cmpeq_epi8(bytes, greater));
    const auto lessBits = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, less)));
    const auto stopBits = static_cast<unsigned>(_mm_movemask_epi8(stops));
    bits.less |= static_cast<std::uint64_t>(lessBits) << at;
    bits.tagStop |= static_cast<std::uint64_t>(stopBits) << at;
  }
  return bits;
}

#else

FoundBits findBits(const char16_t* units) {
  FoundBits bits;
  for (unsigned at = 0; at < 64; ++at) {
    const char16_t unit = units[at];
    const bool isStop = unit == u'>' || unit == u'"' || unit == u'\'';
    bits.less |= static_cast<std::uint64_t>(unit == u'<') << at;
    bits.tagStop |= static_cast<std::uint64_t>(isStop) << at;
  }
  return bits;
}

#endif

}  // namespace

void MarkupScanner::loadBlock(std::size_t block) {
  FoundBits bits;
  if (text_.size() - block >= kBlock) {
    bits = findBits(text_.data() + block);
  } else {
    std::array<char16_t, kBlock> padded{};
    std::copy(text_.begin() + static_cast<std::ptrdiff_t>(block), text_.end(), padded.begin());
    bits = findBits(padded.data());
  }
  block_ = block;
  masks_ = {bits.less, bits.tagStop, bits.less | bits.tagStop};
}

std::size_t MarkupScanner::findInOtherBlocks(std::uint64_t Masks::*mask, std::size_t from) {
  while (from < text_.size()) {
    const std::size_t block = from & ~(kBlock - 1);
    loadBlock(block);
    const std::uint64_t found = masks_.*mask >> (from - block);
    if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found));
    from = block + kBlock;
  }
  return text_.size();
}

}  // namespace brennet
