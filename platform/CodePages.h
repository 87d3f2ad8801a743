#pragma once

#include <string>
#include <string_view>

namespace brennet::platform {

// A Windows code page number. The conversions are kernel32's on Windows and ICU's converters
// elsewhere. How the two compare:
//
// - 936, which the settings are written in: the same, in both directions, for everything.
// - 932: the same for single bytes; ICU's table of pairs is the nearest match. It lacks the best
//   fits of kernel32, which writes letters with accents without them, for example.
// - 874, 949 and 950: ICU's tables are those of Windows 2000, best fits included.
// - 1250 to 1258 and ISO 8859: the same for what the code page has. Of kernel32's best fits ICU has
//   those of full-width letters, and in 1256 of Arabic forms; any other such character becomes the
//   default one, and is lost.
// - all others: nearest matches. The stateful ones differ in where they switch. Some rare code
//   pages are supported on one system only.
using CodePage = unsigned;

inline constexpr CodePage kGb2312 = 936;
inline constexpr CodePage kUtf16LittleEndian = 1200;
inline constexpr CodePage kUtf16BigEndian = 1201;
inline constexpr CodePage kUtf32LittleEndian = 12000;
inline constexpr CodePage kUtf32BigEndian = 12001;
inline constexpr CodePage kUtf8 = 65001;

// How the bytes of a code page make up characters.
enum class CodePageShape {
  Unsupported,  // this system has no conversion for it
  SingleByte,   // one byte, one character
  DoubleByte,   // one byte, or a lead byte and the byte after it
  Other,        // longer or stateful sequences; the end of a block cannot be examined
};

// The code page of texts that name none: CP_ACP's on Windows, 936 elsewhere.
[[nodiscard]] CodePage ansiCodePage();

// Not for UTF-8, UTF-16 and UTF-32, which the caller converts itself.
[[nodiscard]] CodePageShape codePageShape(CodePage codePage);

// Whether `byte` starts a pair in the double-byte code page `codePage`.
[[nodiscard]] bool isLeadByte(CodePage codePage, unsigned char byte);

// The UTF-16 unit of one byte of a double-byte code page that is not a lead byte.
[[nodiscard]] char16_t byteToUtf16(CodePage codePage, unsigned char byte);

// The UTF-16 unit of the pair `lead`, `trail` in a double-byte code page. A lead byte always takes
// the byte after it; a pair that stands for nothing gives the code page's default character.
[[nodiscard]] char16_t pairToUtf16(CodePage codePage, unsigned char lead, unsigned char trail);

// The bytes of one UTF-16 unit in a double-byte code page.
struct EncodedUnit {
  unsigned char bytes[2];
  unsigned char length;  // 1 or 2
  bool lost;             // the unit has no representation: `bytes` is the default character
};
[[nodiscard]] EncodedUnit utf16ToBytes(CodePage codePage, char16_t unit);

// Whole texts in code pages of any supported shape; appended to `out`. What has no representation
// becomes the default character; `encode` returns whether that happened. What the system fails to
// convert is left out, which counts as a loss as well.
void decode(CodePage codePage, std::string_view bytes, std::u16string& out);
[[nodiscard]] bool encode(CodePage codePage, std::u16string_view text, std::string& out);

}  // namespace brennet::platform
