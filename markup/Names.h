#pragma once

#include <cstdint>
#include <string_view>

namespace brennet {

constexpr bool isMarkupSpace(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

// Whether `unit` can stand in the name of an element or an attribute. Like tags, names are read
// leniently: only what has a meaning of its own in a tag ends a name.
constexpr bool isNameUnit(char16_t unit) {
  // One bit for each unit below 64, set for those that end a name; this runs for every unit of
  // every name.
  constexpr std::uint64_t kOthers = [] {
    std::uint64_t bits = (std::uint64_t{1} << (U' ' + 1)) - 1;
    for (const char32_t other : {U'<', U'>', U'&', U'/', U'=', U'"', U'\''}) {
      bits |= std::uint64_t{1} << other;
    }
    return bits;
  }();
  return unit >= 64 || (kOthers >> unit & 1U) == 0;
}

// Whether `unit` can begin a name: a letter, "_", ":" or anything beyond ASCII.
constexpr bool isNameStart(char16_t unit) {
  return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'_' ||
         unit == u':' || unit >= 0x80;
}

// The name units at the front of `text`.
constexpr std::u16string_view leadingName(std::u16string_view text) {
  std::size_t length = 0;
  while (length < text.size() && isNameUnit(text[length])) ++length;
  return text.substr(0, length);
}

// Whether an element or attribute can be given `name`.
constexpr bool isName(std::u16string_view name) {
  return !name.empty() && isNameStart(name[0]) && leadingName(name).size() == name.size();
}

}  // namespace brennet
