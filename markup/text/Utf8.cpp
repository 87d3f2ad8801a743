#include "markup/text/Utf8.h"

#include <algorithm>
#include <array>

#include "markup/text/AsciiRuns.h"
#include "markup/text/Utf16.h"

namespace brennet {
namespace {

// The size of a chunk: what is written and read again stays in the processor's nearest cache.
constexpr std::size_t kChunk = 4096;

constexpr std::size_t kLongestCharacter = 4;

// The shape of the sequences that a lead byte begins, with the range of their second byte, which
// excludes overlong forms, surrogates and everything above U+10FFFF.
struct Lead {
  unsigned char length;  // 0: not a lead byte
  unsigned char payload;
  unsigned char secondFirst, secondLast;
};

constexpr Lead leadOf(unsigned char byte) {
  const auto bits = [byte](unsigned mask) { return static_cast<unsigned char>(byte & mask); };
  if (byte >= 0xC2 && byte <= 0xDF) return {2, bits(0x1F), 0x80, 0xBF};
  if (byte == 0xE0) return {3, bits(0x0F), 0xA0, 0xBF};
  if (byte == 0xED) return {3, bits(0x0F), 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {3, bits(0x0F), 0x80, 0xBF};
  if (byte == 0xF0) return {4, bits(0x07), 0x90, 0xBF};
  if (byte >= 0xF1 && byte <= 0xF3) return {4, bits(0x07), 0x80, 0xBF};
  if (byte == 0xF4) return {4, bits(0x07), 0x80, 0x8F};
  return {0, 0, 0, 0};
}

char32_t scalarAt(std::u16string_view text, std::size_t at, std::size_t& units) {
  const Utf16Character character = characterAt(text, at);
  units = character.units;
  return isSurrogate(character.codePoint) ? char32_t{kReplacementUnit} : character.codePoint;
}

std::size_t encodedLength(char32_t scalar) {
  if (scalar < 0x80) return 1;
  if (scalar < 0x800) return 2;
  return scalar < 0x10000 ? 3 : 4;
}

void writeScalar(char32_t scalar, std::size_t length, char* out) {
  constexpr std::array<unsigned char, 5> kLeadBits = {0, 0, 0xC0, 0xE0, 0xF0};
  for (std::size_t i = length - 1; i > 0; --i, scalar >>= 6U) {
    out[i] = static_cast<char>(0x80U | (scalar & 0x3FU));
  }
  out[0] = static_cast<char>(kLeadBits[length == 1 ? 0 : length] | scalar);
}

bool takesThreeBytes(char16_t unit) {
  return unit >= 0x800 && (unit & 0xF800) != 0xD800;
}

// Writes the characters of three bytes at the front of `text`, as far as they fit, and returns
// their number. Most characters of a Chinese text take three bytes.
std::size_t writeThrees(std::u16string_view text, std::span<char> out) {
  const std::size_t most = std::min(text.size(), out.size() / 3);
  char* to = out.data();
  std::size_t count = 0;
  for (; count < most && takesThreeBytes(text[count]); ++count, to += 3) {
    const unsigned unit = text[count];
    to[0] = static_cast<char>(0xE0U | unit >> 12U);
    to[1] = static_cast<char>(0x80U | (unit >> 6U & 0x3FU));
    to[2] = static_cast<char>(0x80U | (unit & 0x3FU));
  }
  return count;
}

// Decodes all of `bytes` to `out`, which has room for as many units, and returns their number.
std::size_t decodeChunk(std::string_view bytes, char16_t* out) {
  char16_t* const start = out;
  while (!bytes.empty()) {
    const std::size_t ascii = widenAscii(bytes, out);
    bytes.remove_prefix(ascii);
    out += ascii;
    while (!bytes.empty() && static_cast<unsigned char>(bytes[0]) >= 0x80) {
      const Utf8Character character = firstUtf8Character(bytes);
      out += writeCharacter(character.codePoint, out);
      bytes.remove_prefix(character.bytes);
    }
  }
  return static_cast<std::size_t>(out - start);
}

}  // namespace

std::size_t utf8Length(std::u16string_view text) {
  std::size_t length = 0;
  for (std::size_t at = 0, units = 0; at < text.size(); at += units) {
    length += encodedLength(scalarAt(text, at, units));
  }
  return length;
}

std::size_t utf16ToUtf8(std::u16string_view text, std::span<char> out) {
  std::size_t at = 0;
  std::size_t written = 0;
  while (at < text.size()) {
    const std::size_t threes = writeThrees(text.substr(at), out.subspan(written));
    at += threes;
    written += 3 * threes;
    if (at == text.size()) break;
    const std::size_t room = std::min(out.size() - written, text.size() - at);
    const std::size_t ascii = narrowAscii(text.substr(at, room), out.data() + written);
    at += ascii;
    written += ascii;
    if (at == text.size()) break;
    if (takesThreeBytes(text[at]) && out.size() - written >= 3) continue;
    std::size_t units = 0;
    const char32_t scalar = scalarAt(text, at, units);
    const std::size_t length = encodedLength(scalar);
    if (length > out.size() - written) break;
    writeScalar(scalar, length, out.data() + written);
    at += units;
    written += length;
  }
  return written;
}

void utf8ToUtf16(std::string_view bytes, std::u16string& out) {
  out.reserve(out.size() + bytes.size());
  while (!bytes.empty()) {
    std::string_view chunk = bytes.substr(0, kChunk);
    if (chunk.size() > kLongestCharacter) chunk = chunk.substr(0, wholeUtf8Length(chunk));
    if (chunk.size() + kLongestCharacter > bytes.size()) chunk = bytes;
    const std::size_t end = out.size();
    out.resize(end + chunk.size());
    out.resize(end + decodeChunk(chunk, out.data() + end));
    bytes.remove_prefix(chunk.size());
  }
}

std::string utf8Of(std::u16string_view text) {
  std::string bytes(utf8Length(text), '\0');
  utf16ToUtf8(text, bytes);
  return bytes;
}

Utf8Character firstUtf8Character(std::string_view bytes) {
  using State = Utf8Character::State;
  const auto first = static_cast<unsigned char>(bytes[0]);
  if (first < 0x80) return {State::Good, 1, first};
  const Lead lead = leadOf(first);
  if (lead.length == 0) return {State::Bad, 1, kReplacementUnit};
  char32_t codePoint = lead.payload;
  for (std::size_t i = 1; i < lead.length; ++i) {
    if (i == bytes.size()) return {State::CutOff, i, kReplacementUnit};
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const unsigned char least = i == 1 ? lead.secondFirst : 0x80;
    const unsigned char most = i == 1 ? lead.secondLast : 0xBF;
    if (byte < least || byte > most) return {State::Bad, i, kReplacementUnit};
    codePoint = codePoint << 6U | (byte & 0x3FU);
  }
  return {State::Good, lead.length, codePoint};
}

std::size_t wholeUtf8Length(std::string_view bytes) {
  for (std::size_t back = 1; back < kLongestCharacter && back <= bytes.size(); ++back) {
    const std::string_view tail = bytes.substr(bytes.size() - back);
    if ((static_cast<unsigned char>(tail[0]) & 0xC0U) == 0x80) continue;
    const bool cutOff = firstUtf8Character(tail).state == Utf8Character::State::CutOff;
    return cutOff ? bytes.size() - back : bytes.size();
  }
  return bytes.size();
}

}  // namespace brennet
