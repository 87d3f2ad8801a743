#include "tools/skin/Png.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "tools/skin/Deflate.h"

namespace brennet::skin {
namespace {

constexpr std::size_t kPixelSize = 4;

std::string bigEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

std::uint32_t crc(std::string_view bytes) {
  std::uint32_t value = 0xFFFFFFFF;
  for (const char byte : bytes) {
    value ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) value = value >> 1 ^ ((value & 1) != 0 ? 0xEDB88320 : 0);
  }
  return ~value;
}

std::string chunk(const std::string& type, const std::string& data) {
  const std::string body = type + data;
  return bigEndian(static_cast<std::uint32_t>(data.size())) + body + bigEndian(crc(body));
}

// Each row as the difference to the row above it, which is zero almost everywhere.
std::vector<std::uint8_t> filteredRows(const Canvas& canvas) {
  constexpr std::uint8_t kUp = 2;
  const std::vector<std::uint8_t> pixels = canvas.bytes();
  const std::size_t rowSize = static_cast<std::size_t>(canvas.width()) * kPixelSize;
  std::vector<std::uint8_t> rows;
  rows.reserve(pixels.size() + pixels.size() / rowSize);
  for (std::size_t at = 0; at < pixels.size(); ++at) {
    if (at % rowSize == 0) rows.push_back(kUp);
    const int above = at < rowSize ? 0 : pixels[at - rowSize];
    rows.push_back(static_cast<std::uint8_t>(pixels[at] - above));
  }
  return rows;
}

}  // namespace

std::string encodePng(const Canvas& canvas) {
  // Eight bits for each of four channels, no interlacing.
  constexpr std::string_view kFormat("\x08\x06\0\0\0", 5);
  const std::string header = bigEndian(static_cast<std::uint32_t>(canvas.width())) +
                             bigEndian(static_cast<std::uint32_t>(canvas.height())) +
                             std::string(kFormat);
  return "\x89PNG\r\n\x1A\n" + chunk("IHDR", header) +
         chunk("IDAT", compress(filteredRows(canvas))) + chunk("IEND", "");
}

}  // namespace brennet::skin
