#include "platform/TemporaryNames.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace brennet::platform {
namespace {

using NameView = std::basic_string_view<Path::value_type>;

// `text` in the units of this system's names.
template <std::size_t size>
constexpr std::array<Path::value_type, size - 1> inUnits(const char (&text)[size]) {
  std::array<Path::value_type, size - 1> units{};
  std::copy_n(text, size - 1, units.begin());
  return units;
}

constexpr auto kStart = inUnits(".brennet-");
constexpr auto kEnd = inUnits(".tmp");

NameView view(const auto& units) {
  return {units.data(), units.size()};
}

bool isNumber(NameView text) {
  const auto isDigit = [](Path::value_type unit) { return unit >= '0' && unit <= '9'; };
  return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

// The largest number stands for all that are too large: no process has it.
unsigned long numberOf(NameView digits) {
  constexpr unsigned long kLargest = std::numeric_limits<unsigned long>::max();
  unsigned long number = 0;
  for (const Path::value_type digit : digits) {
    const auto value = static_cast<unsigned long>(digit - '0');
    if (number > (kLargest - value) / 10) return kLargest;
    number = number * 10 + value;
  }
  return number;
}

}  // namespace

Path temporaryName(const Path& path, unsigned long process, int number) {
  Path name = path;
  name += view(kStart);
  name += std::to_string(process) + "-" + std::to_string(number);
  name += view(kEnd);
  return name;
}

std::optional<unsigned long> temporaryProcess(NameView ending) {
  if (ending.size() < kStart.size() + kEnd.size()) return {};
  if (!ending.starts_with(view(kStart)) || !ending.ends_with(view(kEnd))) return {};
  ending.remove_prefix(kStart.size());
  ending.remove_suffix(kEnd.size());
  const std::size_t dash = ending.find('-');
  if (dash == NameView::npos || !isNumber(ending.substr(0, dash)) ||
      !isNumber(ending.substr(dash + 1))) {
    return {};
  }
  return numberOf(ending.substr(0, dash));
}

}  // namespace brennet::platform
