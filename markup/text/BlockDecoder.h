#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/CodePages.h"

namespace brennet {

// What became of one block of a file.
struct DecodedBlock {
  std::size_t bytes;  // that were used; the rest begins a character of the next block
  std::size_t nulls;  // zero units among them, which were removed
};

// Converts the blocks of a file to UTF-16.
class BlockDecoder {
 public:
  // `codePage` is one that this system can convert.
  explicit BlockDecoder(platform::CodePage codePage);

  // Whether characters that a block cuts off can be recognised. If not, the whole file must be one
  // block.
  [[nodiscard]] bool canExamineEnd() const { return form_ != Form::Opaque; }

  // Appends the text in `block` to `out`. `isLast` says that nothing follows, so that all of it is
  // used.
  DecodedBlock decode(std::string_view block, bool isLast, std::u16string& out);

 private:
  enum class Form { Utf16, Utf32, Utf8, DoubleByte, SingleByte, Opaque };

  static Form formOf(platform::CodePage codePage);
  DecodedBlock decodeUtf16(std::string_view block, bool isLast, std::u16string& out) const;
  DecodedBlock decodeUtf32(std::string_view block, bool isLast, std::u16string& out) const;
  DecodedBlock decodeBytes(std::string_view block, bool isLast, std::u16string& out);
  std::size_t convert(std::string_view bytes, bool isLast, std::u16string& out) const;

  platform::CodePage codePage_;
  Form form_;
  std::string withoutNulls_;
};

}  // namespace brennet
