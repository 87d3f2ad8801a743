#include "markup/EncodingDetection.h"

#include <optional>

#include "markup/AsciiRuns.h"
#include "markup/DeclaredEncoding.h"
#include "markup/DoubleByteCodec.h"
#include "markup/EncodingNames.h"
#include "markup/TextForm.h"
#include "markup/Utf8.h"

namespace brennet {
namespace {

using platform::CodePage;
using Source = DetectedEncoding::Source;

struct UnicodeEncoding {
  CodePage codePage;
  std::u16string_view name;
};

// The mark of UTF-32 begins with that of UTF-16, so it comes first.
constexpr UnicodeEncoding kUnicodeEncodings[] = {
    {platform::kUtf8, u"UTF-8"},
    {platform::kUtf32LittleEndian, u"UTF-32LE"},
    {platform::kUtf32BigEndian, u"UTF-32BE"},
    {platform::kUtf16LittleEndian, u"UTF-16LE"},
    {platform::kUtf16BigEndian, u"UTF-16BE"},
};

std::optional<DetectedEncoding> encodingOfMark(std::string_view bytes) {
  for (const UnicodeEncoding& encoding : kUnicodeEncodings) {
    const std::string_view mark = markOf(encoding.codePage);
    if (bytes.starts_with(mark)) {
      return DetectedEncoding{Source::Mark, encoding.codePage, std::u16string(encoding.name),
                              mark.size()};
    }
  }
  return std::nullopt;
}

// Whether `byte` can follow the first "<" of a document.
bool canFollowLess(char byte) {
  return byte == '?' || byte == '!' || byte == '_' || (byte >= 'a' && byte <= 'z') ||
         (byte >= 'A' && byte <= 'Z');
}

std::optional<DetectedEncoding> encodingOfSignature(std::string_view bytes) {
  if (bytes.size() < 4) return std::nullopt;
  if (bytes[0] == '<' && bytes[1] == 0 && canFollowLess(bytes[2]) && bytes[3] == 0) {
    return DetectedEncoding{Source::Signature, platform::kUtf16LittleEndian, u"UTF-16LE", 0};
  }
  if (bytes[0] == 0 && bytes[1] == '<' && bytes[2] == 0 && canFollowLess(bytes[3])) {
    return DetectedEncoding{Source::Signature, platform::kUtf16BigEndian, u"UTF-16BE", 0};
  }
  return std::nullopt;
}

struct Utf8Check {
  bool isValid;
  bool hasLongSequence;  // of three or four bytes
};

Utf8Check checkUtf8(std::string_view bytes) {
  Utf8Check check{true, false};
  while (check.isValid) {
    bytes.remove_prefix(countAscii(bytes));
    if (bytes.empty()) break;
    const Utf8Character character = firstUtf8Character(bytes);
    check.isValid = character.state != Utf8Character::State::Bad;
    check.hasLongSequence |= character.state == Utf8Character::State::Good && character.bytes >= 3;
    bytes.remove_prefix(character.bytes);
  }
  return check;
}

// Whether `bytes` hold a pair outside the rows A1 to F7, columns A1 to FE, where the characters of
// the national standards stand.
bool hasPairOutsideStandardRows(const DoubleByteCodec& codec, std::string_view bytes) {
  for (;;) {
    bytes.remove_prefix(countAscii(bytes));
    if (bytes.size() < 2) return false;
    const auto lead = static_cast<unsigned char>(bytes[0]);
    if (!codec.isLeadByte(lead)) {
      bytes.remove_prefix(1);
      continue;
    }
    const auto trail = static_cast<unsigned char>(bytes[1]);
    if (lead < 0xA1 || lead > 0xF7 || trail < 0xA1 || trail > 0xFE) return true;
    bytes.remove_prefix(2);
  }
}

bool isDoubleByte(CodePage codePage) {
  return codePage != 0 && unitSize(codePage) == 1 && codePage != platform::kUtf8 &&
         platform::codePageShape(codePage) == platform::CodePageShape::DoubleByte;
}

bool isUtf8Text(std::string_view bytes, CodePage declared) {
  const Utf8Check check = checkUtf8(bytes);
  if (!check.isValid || !isDoubleByte(declared)) return check.isValid;
  DoubleByteCodec& codec = DoubleByteCodec::of(declared);
  if (!codec.canDecode(bytes)) return true;
  return check.hasLongSequence && hasPairOutsideStandardRows(codec, bytes);
}

}  // namespace

CodePage convertibleCodePage(CodePage codePage) {
  if (codePage == platform::kUtf8 || unitSize(codePage) > 1) return codePage;
  const bool isKnown =
      codePage != 0 && platform::codePageShape(codePage) != platform::CodePageShape::Unsupported;
  return isKnown ? codePage : platform::ansiCodePage();
}

DetectedEncoding detectEncoding(std::string_view bytes) {
  if (auto encoding = encodingOfMark(bytes)) return *std::move(encoding);
  if (auto encoding = encodingOfSignature(bytes)) return *std::move(encoding);
  std::u16string name = declaredEncodingOfBytes(bytes);
  CodePage declared = encodingToCodePage(name);
  // A declaration that was read byte for byte, without zeros in between, is not in wide units.
  if (unitSize(declared) > 1 && bytes.substr(0, 4).find('\0') == std::string_view::npos) {
    declared = 0;
  }
  if (isUtf8Text(bytes, declared)) {
    return {Source::Utf8Detection, platform::kUtf8, u"UTF-8", 0};
  }
  if (name.empty()) return {Source::Ansi, platform::ansiCodePage(), u"ANSI", 0};
  return {Source::Declaration, convertibleCodePage(declared), std::move(name), 0};
}

}  // namespace brennet
