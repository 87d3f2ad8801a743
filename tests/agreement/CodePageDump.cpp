#include "tests/agreement/CodePageDump.h"

#include <array>
#include <cstdio>
#include <string>

#include "platform/CodePages.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {
namespace {

using platform::kGb2312;

// A line of hexadecimal numbers.
template <class... Numbers>
std::string line(const char* format, Numbers... numbers) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), format, numbers...);
  return text.data();
}

std::string decoded() {
  std::string text;
  for (unsigned byte = 0; byte < 0x100; ++byte) {
    const auto lead = static_cast<unsigned char>(byte);
    if (!platform::isLeadByte(kGb2312, lead)) {
      text += line("%02X %04X\n", byte, unsigned{platform::byteToUtf16(kGb2312, lead)});
      continue;
    }
    for (unsigned trail = 0; trail < 0x100; ++trail) {
      const char16_t unit = platform::pairToUtf16(kGb2312, lead, static_cast<unsigned char>(trail));
      text += line("%02X%02X %04X\n", byte, trail, unsigned{unit});
    }
  }
  return text;
}

std::string encoded() {
  std::string text;
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    const platform::EncodedUnit bytes =
        platform::utf16ToBytes(kGb2312, static_cast<char16_t>(unit));
    text += line("%04X %u %02X %02X %s\n", unit, unsigned{bytes.length}, unsigned{bytes.bytes[0]},
                 bytes.length == 2 ? unsigned{bytes.bytes[1]} : 0U, bytes.lost ? "lost" : "");
  }
  return text;
}

}  // namespace

void dumpCodePage936(const std::filesystem::path& folder) {
  writeBytes(folder / "decode.txt", decoded());
  writeBytes(folder / "encode.txt", encoded());
}

}  // namespace brennet::test
