#include "markup/Escaping.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "markup/EntityTable.h"
#include "markup/text/Utf16.h"

namespace brennet {
namespace {

constexpr std::u16string_view kCDataStart = u"<![CDATA[";
constexpr std::u16string_view kCDataEnd = u"]]>";

struct Entity {
  char16_t unit;
  std::u16string_view text;
};
constexpr Entity kEntities[] = {
    {u'<', u"&lt;"}, {u'>', u"&gt;"}, {u'&', u"&amp;"}, {u'"', u"&quot;"}, {u'\'', u"&apos;"},
};

// One bit for each unit below 64, set for those above: nearly all values have none of them.
constexpr std::uint64_t kEscaped = [] {
  std::uint64_t bits = 0;
  for (const Entity& entity : kEntities) bits |= std::uint64_t{1} << entity.unit;
  return bits;
}();

constexpr bool isEscaped(char16_t unit) {
  return unit < 64 && (kEscaped >> unit & 1U) != 0;
}

// `unit` is one of those above.
std::u16string_view entityOf(char16_t unit) {
  return std::find_if(std::begin(kEntities), std::end(kEntities),
                      [unit](const Entity& entity) { return entity.unit == unit; })
      ->text;
}

// The value of `unit` as a hexadecimal digit, or 16 if it is none.
char32_t digitValue(char16_t unit) {
  if (unit >= u'0' && unit <= u'9') return unit - U'0';
  if (unit >= u'a' && unit <= u'f') return unit - U'a' + 10;
  if (unit >= u'A' && unit <= u'F') return unit - U'A' + 10;
  return 16;
}

// A reference at the front of a text: the character, 0 if it is invalid, and the length as written.
struct Reference {
  char32_t codePoint = 0;
  std::size_t length = 0;
};

// `text` starts behind "&#".
Reference numericReference(std::u16string_view text) {
  const bool hexadecimal = !text.empty() && text[0] == u'x';
  const char32_t base = hexadecimal ? 16 : 10;
  const std::size_t first = hexadecimal ? 1 : 0;
  std::size_t at = first;
  char32_t value = 0;
  for (; at < text.size() && digitValue(text[at]) < base; ++at) {
    value = std::min(value * base + digitValue(text[at]), kLastCodePoint + 1);
  }
  if (at == first || at == text.size() || text[at] != u';') return {};
  return {isScalarValue(value) ? value : 0, at + 1};
}

// `text` starts behind "&".
Reference namedReference(std::u16string_view text) {
  const std::size_t length = text.substr(0, kLongestEntityName + 1).find(u';');
  if (length == std::u16string_view::npos) return {};
  return {entityCode(text.substr(0, length)), length + 1};
}

// `text` starts with "&".
Reference referenceAt(std::u16string_view text) {
  const bool numeric = text.size() > 1 && text[1] == u'#';
  const std::size_t prefix = numeric ? 2 : 1;
  Reference reference =
      numeric ? numericReference(text.substr(prefix)) : namedReference(text.substr(prefix));
  reference.length += prefix;
  return reference;
}

}  // namespace

bool needsEscaping(std::u16string_view text) {
  return std::any_of(text.begin(), text.end(), isEscaped);
}

void appendEscaped(std::u16string_view text, std::u16string& out) {
  std::size_t written = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!isEscaped(text[at])) continue;
    out.append(text.substr(written, at - written)).append(entityOf(text[at]));
    written = at + 1;
  }
  out.append(text.substr(written));
}

void appendUnescaped(std::u16string_view text, std::u16string& out) {
  std::size_t written = 0;
  std::size_t at = text.find(u'&');
  while (at != std::u16string_view::npos) {
    const Reference reference = referenceAt(text.substr(at));
    if (reference.codePoint != 0) {
      char16_t units[2];
      const std::size_t unitCount = writeCharacter(reference.codePoint, units);
      out.append(text.substr(written, at - written)).append(units, unitCount);
      written = at + reference.length;
      at = written;
    } else {
      ++at;
    }
    at = text.find(u'&', at);
  }
  out.append(text.substr(written));
}

std::u16string unescaped(std::u16string_view text) {
  // Most values are numbers.
  if (text.find(u'&') == std::u16string_view::npos) return std::u16string(text);
  std::u16string result;
  appendUnescaped(text, result);
  return result;
}

void appendCData(std::u16string_view text, std::u16string& out) {
  out.append(kCDataStart);
  std::size_t written = 0;
  for (std::size_t at = text.find(kCDataEnd); at != std::u16string_view::npos;
       at = text.find(kCDataEnd, at + kCDataEnd.size())) {
    const std::size_t split = at + 2;  // behind "]]", before ">"
    out.append(text.substr(written, split - written)).append(kCDataEnd).append(kCDataStart);
    written = split;
  }
  out.append(text.substr(written)).append(kCDataEnd);
}

}  // namespace brennet
