#pragma once

#include <cstdint>
#include <string_view>

namespace brennet {

// The code of the character entity `name` (without "&" and ";", case matters): the 252 names of
// HTML 4 and "apos". 0 for an unknown name.
[[nodiscard]] std::uint32_t entityCode(std::u16string_view name);

// The bucket of the entity table that holds `name`: entries of one digit for the length of the
// name, four for the code, and the name, such as u"30038amp".
[[nodiscard]] std::u16string_view entityBucket(std::u16string_view name);

// The longest name in the table.
inline constexpr std::size_t kLongestEntityName = 8;

}  // namespace brennet
