#include "markup/MarkupScanner.h"

#include <algorithm>
#include <array>

#include "markup/text/Sse2.h"

namespace brennet {
namespace {

struct FoundBits {
  std::uint64_t less = 0;
  std::uint64_t greater = 0;
  std::uint64_t quote = 0;
  std::uint64_t apostrophe = 0;
};

#if BRENNET_HAS_SSE2

std::uint64_t bitsOf(__m128i bytes, char wanted, unsigned at) {
  const __m128i found = _mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted));
  return static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(found))) << at;
}

// Looks at 64 units, 16 at a time. Packing with saturation turns units of 256 and more into 0 or
// 255, neither of which is searched for.
FoundBits findBits(const char16_t* units) {
  FoundBits bits;
  for (unsigned at = 0; at < 64; at += 16) {
    const auto* source = reinterpret_cast<const __m128i*>(units + at);
    const __m128i bytes = _mm_packus_epi16(_mm_loadu_si128(source), _mm_loadu_si128(source + 1));
    bits.less |= bitsOf(bytes, '<', at);
    bits.greater |= bitsOf(bytes, '>', at);
    bits.quote |= bitsOf(bytes, '"', at);
    bits.apostrophe |= bitsOf(bytes, '\'', at);
  }
  return bits;
}

#else

FoundBits findBits(const char16_t* units) {
  FoundBits bits;
  for (unsigned at = 0; at < 64; ++at) {
    const char16_t unit = units[at];
    bits.less |= static_cast<std::uint64_t>(unit == u'<') << at;
    bits.greater |= static_cast<std::uint64_t>(unit == u'>') << at;
    bits.quote |= static_cast<std::uint64_t>(unit == u'"') << at;
    bits.apostrophe |= static_cast<std::uint64_t>(unit == u'\'') << at;
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
  const std::uint64_t tagStop = bits.greater | bits.quote | bits.apostrophe;
  masks_ = {bits.less, bits.greater, bits.quote, bits.apostrophe, tagStop, bits.less | tagStop};
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
