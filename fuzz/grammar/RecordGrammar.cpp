// Records as the game hands them back: the number of the current scheme in one byte, then records
// one behind the other. Their fields stand at fixed places, so nothing is ever moved.

#include <algorithm>

#include "fuzz/grammar/Grammar.h"

namespace brennet::fuzz {
namespace {

constexpr std::size_t kRecordSize = 1807;
constexpr std::size_t kMostRecords = 4;

enum class Kind { Size, Flags, Keys, Byte, ChatKeys, Phrases };

// `size` bytes at `offset` of a record.
struct Area {
  std::size_t offset;
  std::size_t size;
  Kind kind;
};

// All that the record holds; what is left out is zeros.
constexpr Area kAreas[] = {
    {0, 4, Kind::Size},     {4, 4, Kind::Flags},        {8, 12, Kind::Keys},
    {20, 12, Kind::Keys},   {32, 4, Kind::Keys},        {36, 2, Kind::ChatKeys},
    {38, 2, Kind::Keys},    {40, 24, Kind::Keys},       {64, 4, Kind::Keys},
    {68, 1, Kind::Byte},    {80, 8, Kind::Keys},        {112, 1024, Kind::Phrases},
    {1136, 14, Kind::Keys}, {1150, 640, Kind::Phrases}, {1790, 2, Kind::Keys},
    {1792, 10, Kind::Keys}, {1802, 5, Kind::Byte},
};

// Few keys, so that many are refused.
std::string key(Choices& choices) {
  constexpr std::uint8_t kVirtualKeys[] = {'Q',  'Q',  'W',  'E',  '1', 0x70,
                                           0x0D, 0x08, 0x2E, 0xFF, 0};
  constexpr std::uint8_t kModifiers[] = {0, 0, 4, 4, 1, 2, 8, 0x0C, 0xFF};
  return {static_cast<char>(choices.pick(kModifiers)),
          static_cast<char>(choices.pick(kVirtualKeys))};
}

std::string phrases(std::size_t size, Choices& choices) {
  constexpr std::string_view kWords[] = {"gg",
                                         "",
                                         "\xE8\xB0\xA2",
                                         "\xF0\x9F\x98\x80",
                                         "\xE8\xB0",
                                         " ",
                                         "\xFF",
                                         "<&>",
                                         "0123456789012345678901234567890123456789"};
  std::string text;
  while (text.size() < size && !choices.oneIn(40)) {
    text += choices.pick(kWords);
    if (choices.oneIn(3)) text.push_back('\0');
  }
  return text;
}

std::string content(const Area& area, Choices& choices) {
  constexpr std::uint8_t kBytes[] = {0, 1, 2, 100, 255};
  std::string bytes;
  switch (area.kind) {
    case Kind::Keys:
      while (bytes.size() < area.size)
        bytes += choices.oneIn(4) ? std::string(2, '\0') : key(choices);
      break;
    case Kind::Phrases:
      bytes = phrases(area.size, choices);
      break;
    case Kind::Flags:
      bytes = {static_cast<char>(choices.below(256)), '\0', '\0', choices.oneIn(2) ? '\x80' : '\0'};
      break;
    case Kind::ChatKeys:
      bytes = {static_cast<char>(choices.below(3)), '\0'};
      break;
    case Kind::Size:
      bytes = "\x0F\x07";
      break;
    case Kind::Byte:
      while (bytes.size() < area.size) bytes.push_back(static_cast<char>(choices.pick(kBytes)));
  }
  bytes.resize(area.size);
  return bytes;
}

std::string record(Choices& choices) {
  std::string bytes(kRecordSize, '\0');
  for (const Area& area : kAreas) {
    if (choices.oneIn(2)) bytes.replace(area.offset, area.size, content(area, choices));
  }
  return bytes;
}

// Where `area` stands in one of the records of `input`; behind its end for a record that is cut.
std::size_t somePlace(const Area& area, std::string_view input, Choices& choices) {
  return 1 + choices.below(input.size() / kRecordSize + 1) * kRecordSize + area.offset;
}

class RecordGrammar final : public Grammar {
 public:
  [[nodiscard]] std::string document(Choices& choices) const override {
    std::string input(1, static_cast<char>(choices.below(4)));
    for (std::size_t n = 1 + choices.below(3); n > 0; --n) input += record(choices);
    return input;
  }

  [[nodiscard]] std::string changed(std::string_view input, Choices& choices) const override {
    std::string bytes(input);
    if (bytes.empty()) return document(choices);
    switch (choices.below(8)) {
      case 0:
        if (bytes.size() < 1 + kMostRecords * kRecordSize) bytes += record(choices);
        break;
      case 1:
        bytes.resize(1 + choices.below(bytes.size()));
        break;
      case 2:
        bytes[0] = static_cast<char>(choices.below(4));
        break;
      default: {
        const Area& area = choices.pick(kAreas);
        put(content(area, choices), somePlace(area, bytes, choices), bytes);
      }
    }
    return bytes;
  }

  // Some fields of `left` get what they hold in `right`.
  [[nodiscard]] std::string crossed(std::string_view left, std::string_view right,
                                    Choices& choices) const override {
    std::string bytes(left);
    for (const Area& area : kAreas) {
      const std::size_t at = somePlace(area, right, choices);
      if (choices.oneIn(3) && at < right.size()) put(right.substr(at, area.size), at, bytes);
    }
    return bytes;
  }

 private:
  // Lays `content` over what stands at `at`; what is behind the end does not count.
  static void put(std::string_view content, std::size_t at, std::string& bytes) {
    if (at >= bytes.size()) return;
    content = content.substr(0, bytes.size() - at);
    bytes.replace(at, content.size(), content);
  }
};

}  // namespace

const Grammar& recordGrammar() {
  static const RecordGrammar grammar;
  return grammar;
}

}  // namespace brennet::fuzz
