#include "markup/text/BlockDecoder.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "markup/text/DoubleByteCodec.h"
#include "markup/text/TextForm.h"
#include "markup/text/Utf16.h"
#include "markup/text/Utf8.h"

namespace brennet {
namespace {

// The number that `bytes` hold, in either byte order.
std::uint32_t readUnit(std::string_view bytes, bool bigEndian) {
  std::uint32_t unit = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const char byte = bytes[bigEndian ? i : bytes.size() - 1 - i];
    unit = unit << 8U | static_cast<unsigned char>(byte);
  }
  return unit;
}

// Where the last `count` bytes that are not zero begin.
std::size_t startOfLastNonZero(std::string_view bytes, std::size_t count) {
  std::size_t at = bytes.size();
  while (count > 0) {
    --at;
    if (bytes[at] != 0) --count;
  }
  return at;
}

// Removes the nulls from `text` from `start` on, and returns how many there were. Bytes other than
// zero can be nulls: ASCII is read without the high bit, so that 0x80 is one.
std::size_t removeNulls(std::u16string& text, std::size_t start) {
  const auto rest = std::remove(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), 0);
  const auto count = static_cast<std::size_t>(text.end() - rest);
  text.erase(rest, text.end());
  return count;
}

}  // namespace

BlockDecoder::BlockDecoder(platform::CodePage codePage)
    : codePage_(codePage), form_(formOf(codePage)) {}

BlockDecoder::Form BlockDecoder::formOf(platform::CodePage codePage) {
  if (isUtf16(codePage)) return Form::Utf16;
  if (isUtf32(codePage)) return Form::Utf32;
  if (codePage == platform::kUtf8) return Form::Utf8;
  switch (platform::codePageShape(codePage)) {
    case platform::CodePageShape::SingleByte:
      return Form::SingleByte;
    case platform::CodePageShape::DoubleByte:
      return Form::DoubleByte;
    default:
      return Form::Opaque;
  }
}

DecodedBlock BlockDecoder::decode(std::string_view block, bool isLast, std::u16string& out) {
  switch (form_) {
    case Form::Utf16:
      return decodeUtf16(block, isLast, out);
    case Form::Utf32:
      return decodeUtf32(block, isLast, out);
    default:
      return decodeBytes(block, isLast, out);
  }
}

// Half a unit, or the first half of a surrogate pair, goes to the next block.
DecodedBlock BlockDecoder::decodeUtf16(std::string_view block, bool isLast,
                                       std::u16string& out) const {
  const bool bigEndian = isBigEndian(codePage_);
  DecodedBlock decoded{0, 0};
  std::size_t lastUnit = 0;  // where the last unit that was kept begins, and the nulls before it
  std::size_t nullsBefore = 0;
  const std::size_t start = out.size();
  for (; block.size() - decoded.bytes >= 2; decoded.bytes += 2) {
    const auto unit = static_cast<char16_t>(readUnit(block.substr(decoded.bytes, 2), bigEndian));
    if (unit == 0) {
      ++decoded.nulls;
      continue;
    }
    lastUnit = decoded.bytes;
    nullsBefore = decoded.nulls;
    out.push_back(unit);
  }
  if (isLast) {
    if (decoded.bytes < block.size()) out.push_back(kReplacementUnit);
    decoded.bytes = block.size();
  } else if (out.size() > start && isHighSurrogate(out.back())) {
    out.pop_back();
    decoded = {lastUnit, nullsBefore};
  }
  return decoded;
}

DecodedBlock BlockDecoder::decodeUtf32(std::string_view block, bool isLast,
                                       std::u16string& out) const {
  const bool bigEndian = isBigEndian(codePage_);
  DecodedBlock decoded{0, 0};
  for (; block.size() - decoded.bytes >= 4; decoded.bytes += 4) {
    const char32_t codePoint = readUnit(block.substr(decoded.bytes, 4), bigEndian);
    if (codePoint == 0) {
      ++decoded.nulls;
      continue;
    }
    std::array<char16_t, 2> units{};
    const char32_t scalar = isScalarValue(codePoint) ? codePoint : char32_t{kReplacementUnit};
    out.append(units.data(), writeCharacter(scalar, units.data()));
  }
  if (isLast && decoded.bytes < block.size()) {
    out.push_back(kReplacementUnit);
    decoded.bytes = block.size();
  }
  return decoded;
}

DecodedBlock BlockDecoder::decodeBytes(std::string_view block, bool isLast, std::u16string& out) {
  std::string_view bytes = block;
  if (block.find('\0') != std::string_view::npos) {
    withoutNulls_.clear();
    std::remove_copy(block.begin(), block.end(), std::back_inserter(withoutNulls_), '\0');
    bytes = withoutNulls_;
  }
  const std::size_t start = out.size();
  const std::size_t left = bytes.size() - convert(bytes, isLast, out);
  const std::size_t used = startOfLastNonZero(block, left);
  return {used, used - (bytes.size() - left) + removeNulls(out, start)};
}

// Appends the text in `bytes`, which hold no zeros, and returns how many of them that were.
std::size_t BlockDecoder::convert(std::string_view bytes, bool isLast, std::u16string& out) const {
  if (form_ == Form::DoubleByte) {
    const std::size_t used = DoubleByteCodec::of(codePage_).decode(bytes, out);
    if (!isLast) return used;
    // Half a character at the end of the file becomes what the system makes of it.
    if (used < bytes.size()) platform::decode(codePage_, bytes.substr(used), out);
  } else if (form_ == Form::Utf8) {
    const std::size_t whole = isLast ? bytes.size() : wholeUtf8Length(bytes);
    utf8ToUtf16(bytes.substr(0, whole), out);
    return whole;
  } else {
    platform::decode(codePage_, bytes, out);
  }
  return bytes.size();
}

}  // namespace brennet
