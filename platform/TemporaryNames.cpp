#include "platform/TemporaryNames.h"

#include <algorithm>
#include <iterator>

namespace brennet::platform {
namespace {

using NameView = std::basic_string_view<Path::value_type>;

constexpr Path::value_type kEnding[] = {'.', 't', 'm', 'p'};

NameView ending() {
  return {kEnding, std::size(kEnding)};
}

bool isNumber(NameView text) {
  const auto isDigit = [](Path::value_type unit) { return unit >= '0' && unit <= '9'; };
  return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

}  // namespace

Path temporaryName(const Path& path, unsigned long process, int number) {
  Path name = path;
  name += "." + std::to_string(process) + "-" + std::to_string(number);
  name += ending();
  return name;
}

bool isTemporaryName(NameView name, NameView file) {
  if (!name.starts_with(file) || !name.ends_with(ending())) return false;
  if (name.size() <= file.size() + ending().size()) return false;
  NameView numbers = name.substr(file.size(), name.size() - file.size() - ending().size());
  if (numbers.front() != '.') return false;
  numbers.remove_prefix(1);
  const std::size_t dash = numbers.find('-');
  return dash != NameView::npos && isNumber(numbers.substr(0, dash)) &&
         isNumber(numbers.substr(dash + 1));
}

}  // namespace brennet::platform
