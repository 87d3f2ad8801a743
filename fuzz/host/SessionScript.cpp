#include "fuzz/host/SessionScript.h"

#include <algorithm>
#include <charconv>

namespace brennet::fuzz {
namespace {

// Takes what stands in front of the first `end` off `text`, and that too.
std::string_view takeUpTo(char end, std::string_view& text) {
  const std::size_t length = std::min(text.find(end), text.size());
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(std::min(length + 1, text.size()));
  return taken;
}

}  // namespace

std::uint32_t Step::number(std::size_t n) const {
  std::uint32_t number = 0;
  const std::string_view digits = word(n);
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

std::vector<Step> stepsOf(std::string_view script) {
  std::vector<Step> steps;
  while (!script.empty()) {
    std::string_view line = takeUpTo('\n', script);
    Step step;
    step.name = takeUpTo(' ', line);
    step.text = line;
    while (!line.empty()) step.words.push_back(takeUpTo(' ', line));
    steps.push_back(std::move(step));
  }
  return steps;
}

std::string bytesFromHex(std::string_view hex) {
  std::string bytes;
  for (; hex.size() >= 2; hex.remove_prefix(2)) {
    unsigned byte = 0;
    const char* end = hex.data() + 2;
    if (std::from_chars(hex.data(), end, byte, 16).ptr != end) break;
    bytes.push_back(static_cast<char>(byte));
  }
  return bytes;
}

}  // namespace brennet::fuzz
