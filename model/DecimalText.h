#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brennet {

// The number at the start of `text` by the rule of C's strtol: leading white space, a sign, decimal
// digits; 0 if there are none. Numbers that exceed 32 bits saturate at the limits.
[[nodiscard]] std::int32_t parseDecimal(std::u16string_view text);

// Whether `text` is a decimal number and nothing else except white space around it.
[[nodiscard]] bool isDecimal(std::u16string_view text);

[[nodiscard]] std::u16string decimalText(std::int64_t number);

}  // namespace brennet
