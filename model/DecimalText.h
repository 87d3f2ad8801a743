#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace brennet {

// The number at the start of `text` by the rule of C's strtol: leading white space, a sign, decimal
// digits; 0 if there are none. Numbers that exceed 32 bits saturate at the limits.
[[nodiscard]] std::int32_t parseDecimal(std::u16string_view text);

// Whether `text` is a decimal number and nothing else except white space around it.
[[nodiscard]] bool isDecimal(std::u16string_view text);

// The decimal digits of a number, with a minus sign if it is negative.
class DecimalDigits {
 public:
  explicit DecimalDigits(std::int64_t number);

  operator std::u16string_view() const {
    return {first_, static_cast<std::size_t>(std::end(digits_) - first_)};
  }
  DecimalDigits(const DecimalDigits&) = delete;
  DecimalDigits& operator=(const DecimalDigits&) = delete;

 private:
  char16_t digits_[20];  // filled from the end
  char16_t* first_;
};

[[nodiscard]] inline std::u16string decimalText(std::int64_t number) {
  return std::u16string(DecimalDigits(number));
}

}  // namespace brennet
