#include "markup/text/DoubleByteCodec.h"

#include <algorithm>
#include <map>

#include "markup/text/AsciiRuns.h"
#include "markup/text/Utf16.h"

namespace brennet {
namespace {

// The size of a chunk: what is written and read again stays in the processor's nearest cache.
constexpr std::size_t kChunk = 4096;

}  // namespace

DoubleByteCodec& DoubleByteCodec::of(platform::CodePage codePage) {
  static std::map<platform::CodePage, DoubleByteCodec> codecs;
  return codecs.try_emplace(codePage, codePage).first->second;
}

DoubleByteCodec::DoubleByteCodec(platform::CodePage codePage) : codePage_(codePage) {
  for (unsigned value = 0; value < 256; ++value) {
    const auto byte = static_cast<unsigned char>(value);
    isLead_[value] = platform::isLeadByte(codePage, byte);
    if (!isLead_[value]) singles_[value] = platform::byteToUtf16(codePage, byte);
  }
}

const DoubleByteCodec::UnitRow& DoubleByteCodec::pairsOf(unsigned char lead) {
  std::unique_ptr<UnitRow>& row = pairs_[lead];
  if (row == nullptr) {
    auto units = std::make_unique<UnitRow>();
    for (unsigned trail = 0; trail < 256; ++trail) {
      (*units)[trail] = platform::pairToUtf16(codePage_, lead, static_cast<unsigned char>(trail));
    }
    row = std::move(units);
  }
  return *row;
}

const DoubleByteCodec::ByteRow& DoubleByteCodec::bytesOf(unsigned highByte) {
  std::unique_ptr<ByteRow>& row = bytes_[highByte];
  if (row == nullptr) {
    auto units = std::make_unique<ByteRow>();
    for (unsigned lowByte = 0; lowByte < 256; ++lowByte) {
      const auto unit = static_cast<char16_t>(highByte << 8U | lowByte);
      (*units)[lowByte] = platform::utf16ToBytes(codePage_, unit);
    }
    row = std::move(units);
  }
  return *row;
}

// Takes whole characters from the front of `bytes` and writes their units to `out`, which has room
// for bytes.size() of them. Returns the number of units.
std::size_t DoubleByteCodec::decodeChunk(std::string_view& bytes, char16_t* out) {
  char16_t* const start = out;
  const char* at = bytes.data();
  const char* const end = at + bytes.size();
  while (at < end) {
    const std::size_t ascii = widenAscii({at, static_cast<std::size_t>(end - at)}, out);
    at += ascii;
    out += ascii;
    while (at < end) {
      const auto byte = static_cast<unsigned char>(*at);
      if (byte < 0x80) break;
      if (!isLead_[byte]) {
        *out++ = singles_[byte];
        ++at;
        continue;
      }
      if (end - at < 2) {
        bytes.remove_prefix(bytes.size() - 1);
        return static_cast<std::size_t>(out - start);
      }
      const UnitRow* row = pairs_[byte].get();
      *out++ = (row != nullptr ? *row : pairsOf(byte))[static_cast<unsigned char>(at[1])];
      at += 2;
    }
  }
  bytes = {};
  return static_cast<std::size_t>(out - start);
}

std::size_t DoubleByteCodec::decode(std::string_view bytes, std::u16string& out) {
  const std::size_t total = bytes.size();
  while (!bytes.empty()) {
    std::string_view chunk = bytes.substr(0, kChunk);
    const std::size_t chunkSize = chunk.size();
    const std::size_t end = out.size();
    out.resize(end + chunkSize);
    out.resize(end + decodeChunk(chunk, out.data() + end));
    bytes.remove_prefix(chunkSize - chunk.size());
    if (bytes.size() == chunk.size()) break;  // nothing is left but half a character
  }
  return total - bytes.size();
}

// Writes `text` to `out`, which has room for two bytes per unit, and returns the number of bytes.
std::size_t DoubleByteCodec::encodeChunk(std::u16string_view text, char* out, bool& lost) {
  char* const start = out;
  const char16_t* at = text.data();
  const char16_t* const end = at + text.size();
  bool anyLost = false;
  while (at < end) {
    const std::size_t ascii = narrowAscii({at, static_cast<std::size_t>(end - at)}, out);
    at += ascii;
    out += ascii;
    for (; at < end && *at >= 0x80; ++at) {
      const unsigned unit = *at;
      const ByteRow* row = bytes_[unit >> 8U].get();
      const platform::EncodedUnit& encoded =
          (row != nullptr ? *row : bytesOf(unit >> 8U))[unit & 0xFFU];
      // Both bytes are written, so that no branch depends on the length.
      out[0] = static_cast<char>(encoded.bytes[0]);
      out[1] = static_cast<char>(encoded.bytes[1]);
      out += encoded.length;
      anyLost |= encoded.lost;
    }
  }
  lost |= anyLost;
  return static_cast<std::size_t>(out - start);
}

bool DoubleByteCodec::encode(std::u16string_view text, std::string& out) {
  bool lost = false;
  while (!text.empty()) {
    const std::u16string_view chunk = text.substr(0, kChunk);
    const std::size_t end = out.size();
    out.resize(end + 2 * chunk.size());
    out.resize(end + encodeChunk(chunk, out.data() + end, lost));
    text.remove_prefix(chunk.size());
  }
  return lost;
}

bool DoubleByteCodec::canDecode(std::string_view bytes) {
  for (;;) {
    bytes.remove_prefix(countAscii(bytes));
    if (bytes.empty()) return true;
    const auto byte = static_cast<unsigned char>(bytes[0]);
    const bool isLead = isLead_[byte];
    if (isLead && bytes.size() < 2) return false;
    const auto trail = static_cast<unsigned char>(isLead ? bytes[1] : '\0');
    const char16_t unit = isLead ? pairsOf(byte)[trail] : singles_[byte];
    // The systems' default characters: bytes that only fall back to one encode back differently.
    const bool isDefault = unit == u'?' || unit == u'\u30FB' || unit == kReplacementUnit;
    if (isDefault) {
      const platform::EncodedUnit back = platform::utf16ToBytes(codePage_, unit);
      const bool same = back.length == (isLead ? 2 : 1) && back.bytes[0] == byte &&
                        (!isLead || back.bytes[1] == trail);
      if (!same) return false;
    }
    bytes.remove_prefix(isLead ? 2 : 1);
  }
}

}  // namespace brennet
