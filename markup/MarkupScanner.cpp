#include "markup/MarkupScanner.h"

#include <algorithm>
#include <array>

#include "markup/text/Sse2.h"

namespace brennet {
namespace {

struct FoundBits {
  std::uint64_t less = 0;     // <
  std::uint64_t tagStop = 0;  // > " '
};

#if BRENNET_HAS_SSE2

__m128i find(__m128i bytes, char wanted) {
  return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted));
}

std::uint64_t bitsOf(__m128i found, unsigned at) {
  return static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(found))) << at;
}

// Looks at 64 units, 16 at a time. Packing with saturation turns units of 256 and more into 0 or
// 255, neither of which is searched for.
FoundBits findBits(const char16_t* units) {
  FoundBits bits;
  for (unsigned at = 0; at < 64; at += 16) {
    const auto* source = reinterpret_cast<const __m128i*>(units + at);
    const __m128i bytes = _mm_packus_epi16(_mm_loadu_si128(source), _mm_loadu_si128(source + 1));
    const __m128i quotes = _mm_or_si128(find(bytes, '"'), find(bytes, '\''));
    bits.less |= bitsOf(find(bytes, '<'), at);
    bits.tagStop |= bitsOf(_mm_or_si128(find(bytes, '>'), quotes), at);
  }
  return bits;
}

#else

FoundBits findBits(const char16_t* units) {
  FoundBits bits;
  for (unsigned at = 0; at < 64; ++at) {
    const char16_t unit = units[at];
    const bool isTagStop = unit == u'>' || unit == u'"' || unit == u'\'';
    bits.less |= static_cast<std::uint64_t>(unit == u'<') << at;
    bits.tagStop |= static_cast<std::uint64_t>(isTagStop) << at;
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

// Searches from `from` on, which is outside the block.
std::size_t MarkupScanner::findInOtherBlocks(std::uint64_t Masks::*mask, std::size_t from) {
  for (; from < text_.size(); from += kBlock) {
    loadBlock(from);
    const std::uint64_t found = masks_.*mask;
    if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found));
  }
  return text_.size();
}

}  // namespace brennet
