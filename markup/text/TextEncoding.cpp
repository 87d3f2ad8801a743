#include "markup/text/TextEncoding.h"

#include "markup/text/DoubleByteCodec.h"
#include "markup/text/EncodingDetection.h"
#include "markup/text/EncodingNames.h"
#include "markup/text/Utf16.h"
#include "markup/text/Utf8.h"

namespace brennet {
namespace {

using platform::CodePage;

void writeUnit(std::uint32_t unit, std::size_t size, bool bigEndian, char* out) {
  for (std::size_t i = 0; i < size; ++i, unit >>= 8U) {
    out[bigEndian ? size - 1 - i : i] = static_cast<char>(unit & 0xFFU);
  }
}

void appendUtf16(std::u16string_view text, bool bigEndian, std::string& bytes) {
  std::size_t at = bytes.size();
  bytes.resize(at + 2 * text.size());
  for (const char16_t unit : text) {
    writeUnit(unit, 2, bigEndian, bytes.data() + at);
    at += 2;
  }
}

void appendUtf32(std::u16string_view text, bool bigEndian, std::string& bytes) {
  bytes.reserve(bytes.size() + 4 * text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf16Character character = characterAt(text, at);
    const bool isPaired = !isSurrogate(character.codePoint);
    char unit[4];
    writeUnit(isPaired ? character.codePoint : kReplacementUnit, sizeof unit, bigEndian, unit);
    bytes.append(unit, sizeof unit);
    at += character.units;
  }
}

void appendUtf8(std::u16string_view text, std::string& bytes) {
  const std::size_t start = bytes.size();
  bytes.resize(start + utf8Length(text));
  utf16ToUtf8(text, std::span(bytes).subspan(start));
}

// Appends `text` in `codePage`; returns whether a character has no representation there.
bool appendEncoded(std::u16string_view text, CodePage codePage, std::string& bytes) {
  if (isUtf16(codePage)) {
    appendUtf16(text, isBigEndian(codePage), bytes);
    return false;
  }
  if (isUtf32(codePage)) {
    appendUtf32(text, isBigEndian(codePage), bytes);
    return !isWellFormedUtf16(text);
  }
  if (codePage == platform::kUtf8) {
    appendUtf8(text, bytes);
    return !isWellFormedUtf16(text);
  }
  if (platform::codePageShape(codePage) == platform::CodePageShape::DoubleByte) {
    return DoubleByteCodec::of(codePage).encode(text, bytes);
  }
  return platform::encode(codePage, text, bytes);
}

// Whether two code pages differ at most in byte order.
bool isSameEncoding(CodePage left, CodePage right) {
  return left == right || (isUtf16(left) && isUtf16(right)) || (isUtf32(left) && isUtf32(right));
}

}  // namespace

std::string encodeText(std::u16string_view text, std::u16string_view encoding, TextLog& log,
                       const TextForm& form) {
  CodePage codePage = convertibleCodePage(encodingToCodePage(encoding));
  bool hasMark = unitSize(codePage) > 1;
  if (isSameEncoding(form.codePage, codePage)) {
    codePage = form.codePage;
    hasMark = form.hasMark;
  }
  std::string bytes(hasMark ? markOf(codePage) : std::string_view());
  const bool lost = appendEncoded(text, codePage, bytes);
  if (!isUtf16(codePage)) {
    log.add(TextEvent::ConvertedFrom, u"UTF-16", static_cast<std::int64_t>(text.size()));
  }
  if (isUtf16(codePage) && isBigEndian(codePage)) log.add(TextEvent::EndianSwap);
  if (lost) log.add(TextEvent::ConversionLoss);
  return bytes;
}

}  // namespace brennet
