#include "markup/text/EncodingDetection.h"

#include <optional>

#include "markup/text/AsciiRuns.h"
#include "markup/text/DoubleByteCodec.h"
#include "markup/text/EncodingNames.h"
#include "markup/text/TextForm.h"
#include "markup/text/Utf8.h"

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

// Whether `bytes` hold a pair outside rows A1 to F7, columns A1 to FE, which hold the characters of
// the national standards. The first half of a longer sequence is such a pair.
template <class IsLeadByte>
bool hasPairOutsideStandardRows(std::string_view bytes, IsLeadByte isLeadByte) {
  for (;;) {
    bytes.remove_prefix(countAscii(bytes));
    if (bytes.size() < 2) return false;
    const auto lead = static_cast<unsigned char>(bytes[0]);
    if (!isLeadByte(lead)) {
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

// GB18030 has the pairs of code page 936 and sequences of four bytes. No system can be asked about
// these one by one, but their form says enough.
constexpr CodePage kGb18030 = 54936;

bool isBetween(char byte, unsigned first, unsigned last) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= first && value <= last;
}
bool isGb18030Lead(char byte) {
  return isBetween(byte, 0x81, 0xFE);
}

// Whether valid UTF-8 has the form of GB18030. It never holds a sequence of four bytes: the second
// and the fourth are digits, and the third, between them, would be half a character.
bool isGb18030(std::string_view bytes) {
  for (;;) {
    bytes.remove_prefix(countAscii(bytes));
    if (bytes.empty()) return true;
    if (bytes.size() < 2 || !isGb18030Lead(bytes[0])) return false;
    if (!isBetween(bytes[1], 0x40, 0x7E) && !isBetween(bytes[1], 0x80, 0xFE)) return false;
    bytes.remove_prefix(2);
  }
}

// Whether valid UTF-8 may in fact be text of the code page: it decodes there, and nothing
// contradicts its declaration.
bool isLikelyIn(CodePage codePage, std::string_view bytes, const Utf8Check& check) {
  if (codePage == kGb18030) {
    const auto isLead = [](unsigned char byte) { return isGb18030Lead(static_cast<char>(byte)); };
    return isGb18030(bytes) &&
           !(check.hasLongSequence && hasPairOutsideStandardRows(bytes, isLead));
  }
  if (!isDoubleByte(codePage)) return false;
  DoubleByteCodec& codec = DoubleByteCodec::of(codePage);
  const auto isLead = [&codec](unsigned char byte) { return codec.isLeadByte(byte); };
  return codec.canDecode(bytes) &&
         !(check.hasLongSequence && hasPairOutsideStandardRows(bytes, isLead));
}

bool isUtf8Text(std::string_view bytes, CodePage declared) {
  const Utf8Check check = checkUtf8(bytes);
  return check.isValid && !isLikelyIn(declared, bytes, check);
}

}  // namespace

CodePage convertibleCodePage(CodePage codePage) {
  if (codePage == platform::kUtf8 || unitSize(codePage) > 1) return codePage;
  const bool isKnown =
      codePage != 0 && platform::codePageShape(codePage) != platform::CodePageShape::Unsupported;
  return isKnown ? codePage : platform::ansiCodePage();
}

DetectedEncoding detectEncoding(std::string_view bytes, DeclaredEncodingFinder findDeclared) {
  if (auto encoding = encodingOfMark(bytes)) return *std::move(encoding);
  if (auto encoding = encodingOfSignature(bytes)) return *std::move(encoding);
  std::u16string name = findDeclared(bytes);
  CodePage declared = encodingToCodePage(name);
  // A text with an unknown encoding name was written in the system's own code page.
  if (declared == 0 && !name.empty()) declared = platform::ansiCodePage();
  // A declaration that was found in single bytes, without zeros in between, is not in wide units.
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
