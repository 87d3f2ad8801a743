#include "platform/TemporaryNames.h"

#include <algorithm>
#include <array>
#include <string>

namespace brennet::platform {
namespace {

using NameView = std::basic_string_view<Path::value_type>;

// In the units of this system's names.
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

}  // namespace

Path temporaryName(const Path& path, unsigned long process, int number) {
  Path name = path;
  name += view(kStart);
  name += std::to_string(process) + "-" + std::to_string(number);
  name += view(kEnd);
  return name;
}

bool isTemporaryEnding(NameView text) {
  if (text.size() < kStart.size() + kEnd.size()) return false;
  if (!text.starts_with(view(kStart)) || !text.ends_with(view(kEnd))) return false;
  text.remove_prefix(kStart.size());
  text.remove_suffix(kEnd.size());
  const std::size_t dash = text.find('-');
  return dash != NameView::npos && isNumber(text.substr(0, dash)) &&
         isNumber(text.substr(dash + 1));
}

}  // namespace brennet::platform
