#pragma once

#include <string_view>

namespace brennet {

constexpr bool isMarkupSpace(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

// Whether `unit` can stand in the name of an element or an attribute. Like the tags themselves,
// names are read generously: only what has a meaning of its own in a tag ends a name.
constexpr bool isNameUnit(char16_t unit) {
  switch (unit) {
    case u'<':
    case u'>':
    case u'&':
    case u'/':
    case u'=':
    case u'"':
    case u'\'':
      return false;
    default:
      return unit > u' ';
  }
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
