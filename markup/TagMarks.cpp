#include "markup/TagMarks.h"

#include <algorithm>
#include <bit>

#include "markup/text/Sse2.h"

namespace brennet {
namespace {

// One bit for each unit of a block, which is as long as a machine word has bits.
using Word = std::size_t;
constexpr std::size_t kBlock = 8 * sizeof(Word);

struct FoundBits {
  Word marks = 0;  // < >
  Word doubleQuotes = 0;
  std::size_t markCount = 0;
  bool hasSingleQuotes = false;
};

#if BRENNET_HAS_SSE2

Word bitsOf(__m128i found) {
  return static_cast<unsigned>(_mm_movemask_epi8(found));
}

// Looks at 16 units at a time. Packing with saturation turns units of 256 and more into 0 or 255,
// neither of which is searched for.
FoundBits findBits(const char16_t* units) {
  const __m128i greater = _mm_set1_epi8('>');
  const __m128i less = _mm_set1_epi8('<');
  const __m128i doubleQuote = _mm_set1_epi8('"');
  const __m128i singleQuote = _mm_set1_epi8('\'');
  FoundBits bits;
  __m128i counts = _mm_setzero_si128();
  __m128i singles = _mm_setzero_si128();
  for (std::size_t at = 0; at < kBlock; at += 16) {
    const auto* source = reinterpret_cast<const __m128i*>(units + at);
    const __m128i bytes = _mm_packus_epi16(_mm_loadu_si128(source), _mm_loadu_si128(source + 1));
    const __m128i marks = _mm_or_si128(_mm_cmpeq_epi8(bytes, less), _mm_cmpeq_epi8(bytes, greater));
    counts = _mm_sub_epi8(counts, marks);
    singles = _mm_or_si128(singles, _mm_cmpeq_epi8(bytes, singleQuote));
    bits.marks |= bitsOf(marks) << at;
    bits.doubleQuotes |= bitsOf(_mm_cmpeq_epi8(bytes, doubleQuote)) << at;
  }
  const __m128i sums = _mm_sad_epu8(counts, _mm_setzero_si128());
  bits.markCount = static_cast<std::size_t>(_mm_cvtsi128_si32(sums)) +
                   static_cast<std::size_t>(_mm_extract_epi16(sums, 4));
  bits.hasSingleQuotes = _mm_movemask_epi8(singles) != 0;
  return bits;
}

#else

FoundBits findBits(const char16_t* units) {
  FoundBits bits;
  for (std::size_t at = 0; at < kBlock; ++at) {
    const char16_t unit = units[at];
    const bool isMark = unit == u'<' || unit == u'>';
    bits.marks |= static_cast<Word>(isMark) << at;
    bits.markCount += isMark ? 1 : 0;
    bits.doubleQuotes |= static_cast<Word>(unit == u'"') << at;
    bits.hasSingleQuotes |= unit == u'\'';
  }
  return bits;
}

#endif

// Each bit becomes the parity of itself and all bits below.
Word paritiesOf(Word bits) {
  for (std::size_t by = 1; by < kBlock; by *= 2) bits ^= bits << by;
  return bits;
}

}  // namespace

void TagMarks::list(std::u16string_view text, std::size_t from) {
  start_ = from;
  end_ = from + std::min(kPiece, text.size() - from);
  count_ = 0;
  Word parity = 0;  // all ones behind an odd number of double quotes
  Word hidden = 0;
  bool hasSingleQuotes = false;
  for (std::size_t at = from; at < end_; at += kBlock) {
    std::array<char16_t, kBlock> padded;
    const char16_t* units = text.data() + at;
    if (end_ - at < kBlock) {
      const auto behind = std::copy(units, text.data() + end_, padded.begin());
      std::fill(behind, padded.end(), u'\0');
      units = padded.data();
    }
    const FoundBits bits = findBits(units);
    const Word parities = paritiesOf(bits.doubleQuotes) ^ parity;
    hidden |= bits.marks & parities;
    hasSingleQuotes |= bits.hasSingleQuotes;
    parity = Word{0} - (parities >> (kBlock - 1));
    append(bits.marks, bits.markCount, at - from);
  }
  quotesMatter_ = hidden != 0 || hasSingleQuotes;
}

// Notes the `count` bits of `marks`. How many they are is hard to foresee for a processor, which
// therefore does the usual number of steps in any case.
void TagMarks::append(Word marks, std::size_t count, std::size_t at) {
  Offset* const out = offsets_.data() + count_;
  for (std::size_t i = 0; i < kTogether; ++i, marks &= marks - 1) {
    out[i] = static_cast<Offset>(at + static_cast<std::size_t>(std::countr_zero(marks)));
  }
  for (std::size_t i = kTogether; i < count; ++i, marks &= marks - 1) {
    out[i] = static_cast<Offset>(at + static_cast<std::size_t>(std::countr_zero(marks)));
  }
  count_ += count;
}

}  // namespace brennet
