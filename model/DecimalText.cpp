#include "model/DecimalText.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace brennet {
namespace {

bool isSpace(char16_t unit) {
  return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}
bool isDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

}  // namespace

std::int32_t parseDecimal(std::u16string_view text) {
  std::size_t at = 0;
  while (at < text.size() && isSpace(text[at])) ++at;
  const bool negative = at < text.size() && text[at] == u'-';
  if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) ++at;

  using Limits = std::numeric_limits<std::int32_t>;
  const std::int64_t limit = negative ? -std::int64_t{Limits::min()} : Limits::max();
  std::int64_t number = 0;
  for (; at < text.size() && isDigit(text[at]) && number <= limit; ++at) {
    number = number * 10 + (text[at] - u'0');
  }
  number = std::min(number, limit);
  return static_cast<std::int32_t>(negative ? -number : number);
}

bool isDecimal(std::u16string_view text) {
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
  if (!text.empty() && (text.front() == u'-' || text.front() == u'+')) text.remove_prefix(1);
  return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

DecimalDigits::DecimalDigits(std::int64_t number) : first_(std::end(digits_)) {
  const auto unsignedNumber = static_cast<std::uint64_t>(number);
  std::uint64_t rest = number < 0 ? 0 - unsignedNumber : unsignedNumber;
  do {
    *--first_ = static_cast<char16_t>(u'0' + rest % 10);
    rest /= 10;
  } while (rest != 0);
  if (number < 0) *--first_ = u'-';
}

}  // namespace brennet
