#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "platform/CodePages.h"

namespace brennet {

// Converts between UTF-16 and a code page whose characters take one or two bytes, such as GB2312.
//
// The system is asked for each character once: answers are kept in rows of 256, one per lead byte
// and one per high byte of a unit, which are filled when they are first needed.
class DoubleByteCodec {
 public:
  // The codec of `codePage`, whose shape must be DoubleByte. Lives as long as the program. Like the
  // whole component, it belongs to one thread.
  static DoubleByteCodec& of(platform::CodePage codePage);

  explicit DoubleByteCodec(platform::CodePage codePage);

  // Appends `bytes` to `out` and returns how many it took: all, or all but a lead byte at the end
  // whose second byte is missing.
  std::size_t decode(std::string_view bytes, std::u16string& out);

  // Appends `text` to `out`, unit by unit. Returns whether any unit has no representation; it is
  // written as the default character.
  [[nodiscard]] bool encode(std::u16string_view text, std::string& out);

  // Whether `bytes` consist of whole characters that the code page knows.
  [[nodiscard]] bool canDecode(std::string_view bytes);

  [[nodiscard]] bool isLeadByte(unsigned char byte) const { return isLead_[byte]; }

 private:
  using UnitRow = std::array<char16_t, 256>;
  using ByteRow = std::array<platform::EncodedUnit, 256>;

  const UnitRow& pairsOf(unsigned char lead);
  const ByteRow& bytesOf(unsigned highByte);
  std::size_t decodeChunk(std::string_view& bytes, char16_t* out);
  std::size_t encodeChunk(std::u16string_view text, char* out, bool& lost);

  platform::CodePage codePage_;
  std::array<bool, 256> isLead_{};
  std::array<char16_t, 256> singles_{};  // for the bytes that are not lead bytes
  std::array<std::unique_ptr<UnitRow>, 256> pairs_;
  std::array<std::unique_ptr<ByteRow>, 256> bytes_;
};

}  // namespace brennet
