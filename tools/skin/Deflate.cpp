#include "tools/skin/Deflate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <unordered_map>

namespace brennet::skin {
namespace {

constexpr std::size_t kShortestMatch = 3;
constexpr std::size_t kLongestMatch = 258;
constexpr std::size_t kFarthest = 32768;

// Where the ranges of the length and distance codes start, with the bits that follow each code.
struct Range {
  std::size_t first;
  int extraBits;
};
constexpr std::array<Range, 29> kLengths = {
    {{3, 0},  {4, 0},  {5, 0},  {6, 0},   {7, 0},   {8, 0},   {9, 0},   {10, 0},  {11, 1}, {13, 1},
     {15, 1}, {17, 1}, {19, 2}, {23, 2},  {27, 2},  {31, 2},  {35, 3},  {43, 3},  {51, 3}, {59, 3},
     {67, 4}, {83, 4}, {99, 4}, {115, 4}, {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0}}};
constexpr std::array<Range, 30> kDistances = {
    {{1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},
     {9, 2},     {13, 2},    {17, 3},    {25, 3},     {33, 4},     {49, 4},
     {65, 5},    {97, 5},    {129, 6},   {193, 6},    {257, 7},    {385, 7},
     {513, 8},   {769, 8},   {1025, 9},  {1537, 9},   {2049, 10},  {3073, 10},
     {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13}}};

// The last range that starts at or before the value.
template <std::size_t size>
unsigned rangeOf(const std::array<Range, size>& ranges, std::size_t value) {
  const auto next = std::upper_bound(ranges.begin(), ranges.end(), value,
                                     [](std::size_t v, const Range& r) { return v < r.first; });
  return static_cast<unsigned>(next - ranges.begin() - 1);
}

// Bits from the lowest of each byte upwards.
class BitWriter {
 public:
  void put(unsigned value, int bits) {
    for (int i = 0; i < bits; ++i) {
      if (used_ == 0) out_.push_back('\0');
      const unsigned byte = static_cast<unsigned char>(out_.back()) | (value >> i & 1U) << used_;
      out_.back() = static_cast<char>(byte);
      used_ = (used_ + 1) % 8;
    }
  }

  // Codes of the fixed table start with their highest bit.
  void putCode(unsigned code, int bits) {
    for (int i = bits - 1; i >= 0; --i) put(code >> i & 1U, 1);
  }

  [[nodiscard]] const std::string& bytes() const { return out_; }

 private:
  std::string out_;
  int used_ = 0;
};

void putSymbol(BitWriter& out, unsigned symbol) {
  if (symbol < 144) {
    out.putCode(0x30 + symbol, 8);
  } else if (symbol < 256) {
    out.putCode(0x190 + symbol - 144, 9);
  } else if (symbol < 280) {
    out.putCode(symbol - 256, 7);
  } else {
    out.putCode(0xC0 + symbol - 280, 8);
  }
}

void putMatch(BitWriter& out, std::size_t length, std::size_t distance) {
  const unsigned lengthCode = rangeOf(kLengths, length);
  putSymbol(out, 257 + lengthCode);
  out.put(static_cast<unsigned>(length - kLengths[lengthCode].first),
          kLengths[lengthCode].extraBits);
  const unsigned distanceCode = rangeOf(kDistances, distance);
  out.putCode(distanceCode, 5);
  out.put(static_cast<unsigned>(distance - kDistances[distanceCode].first),
          kDistances[distanceCode].extraBits);
}

unsigned checksum(const std::vector<std::uint8_t>& bytes) {
  unsigned low = 1;
  unsigned high = 0;
  for (const std::uint8_t byte : bytes) {
    low = (low + byte) % 65521;
    high = (high + low) % 65521;
  }
  return high << 16 | low;
}

}  // namespace

// One block with the fixed codes. Matches are looked for where the same three bytes came last.
std::string compress(const std::vector<std::uint8_t>& bytes) {
  std::unordered_map<unsigned, std::size_t> lastPlace;
  const auto keyAt = [&](std::size_t at) {
    return unsigned{bytes[at]} << 16 | unsigned{bytes[at + 1]} << 8 | bytes[at + 2];
  };
  BitWriter out;
  out.put(0b011, 3);
  std::size_t at = 0;
  while (at < bytes.size()) {
    std::size_t length = 0;
    std::size_t from = 0;
    if (at + kShortestMatch <= bytes.size()) {
      const auto found = lastPlace.find(keyAt(at));
      if (found != lastPlace.end() && at - found->second <= kFarthest) {
        from = found->second;
        const std::size_t most = std::min(kLongestMatch, bytes.size() - at);
        while (length < most && bytes[from + length] == bytes[at + length]) ++length;
      }
    }
    const std::size_t step = std::max<std::size_t>(length, 1);
    if (length == 0) {
      putSymbol(out, bytes[at]);
    } else {
      putMatch(out, length, at - from);
    }
    for (const std::size_t end = at + step; at < end; ++at) {
      if (at + kShortestMatch <= bytes.size()) lastPlace[keyAt(at)] = at;
    }
  }
  putSymbol(out, 256);
  const unsigned sum = checksum(bytes);
  std::string stream = "\x78\x01" + out.bytes();
  for (int shift = 24; shift >= 0; shift -= 8) stream += static_cast<char>(sum >> shift & 0xFF);
  return stream;
}

}  // namespace brennet::skin
