#pragma once

#include <bit>
#include <cstddef>
#include <string_view>

#include "markup/text/Sse2.h"

namespace brennet {

// Conversions of the ASCII characters at the front of a text, 16 at a time. Mixed texts call these
// at the beginning of every run, so they are inline and without set-up.

// The number of bytes below 0x80 at the front of `bytes`.
inline std::size_t countAscii(std::string_view bytes) {
  std::size_t at = 0;
#if BRENNET_HAS_SSE2
  for (; bytes.size() - at >= 16; at += 16) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes.data() + at));
    const auto others = static_cast<unsigned>(_mm_movemask_epi8(block));
    if (others != 0) return at + static_cast<std::size_t>(std::countr_zero(others));
  }
#endif
  while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80) ++at;
  return at;
}

// Writes the bytes below 0x80 at the front of `bytes` as UTF-16 and returns their number. `out`
// has room for bytes.size() units, all of which may be written to.
inline std::size_t widenAscii(std::string_view bytes, char16_t* out) {
  std::size_t at = 0;
#if BRENNET_HAS_SSE2
  const __m128i zero = _mm_setzero_si128();
  for (; bytes.size() - at >= 16; at += 16) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes.data() + at));
    auto* target = reinterpret_cast<__m128i*>(out + at);
    _mm_storeu_si128(target, _mm_unpacklo_epi8(block, zero));
    _mm_storeu_si128(target + 1, _mm_unpackhi_epi8(block, zero));
    const auto others = static_cast<unsigned>(_mm_movemask_epi8(block));
    if (others != 0) return at + static_cast<std::size_t>(std::countr_zero(others));
  }
#endif
  for (; at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80; ++at) {
    out[at] = static_cast<unsigned char>(bytes[at]);
  }
  return at;
}

// Writes the units below 0x80 at the front of `text` as bytes and returns their number. `out` has
// room for text.size() bytes, all of which may be written to.
inline std::size_t narrowAscii(std::u16string_view text, char* out) {
  std::size_t at = 0;
#if BRENNET_HAS_SSE2
  // With saturation, exactly the units from 0x80 on give a byte that is not below 0x80, except
  // those from 0x8000 on, which are negative and give 0; so their sign bits are checked too.
  for (; text.size() - at >= 16; at += 16) {
    const auto* source = reinterpret_cast<const __m128i*>(text.data() + at);
    const __m128i low = _mm_loadu_si128(source);
    const __m128i high = _mm_loadu_si128(source + 1);
    const __m128i bytes = _mm_packus_epi16(low, high);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + at), bytes);
    const __m128i negative = _mm_packs_epi16(low, high);
    const auto others = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(bytes, negative)));
    if (others != 0) return at + static_cast<std::size_t>(std::countr_zero(others));
  }
#endif
  for (; at < text.size() && text[at] < 0x80; ++at) out[at] = static_cast<char>(text[at]);
  return at;
}

}  // namespace brennet
