#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brennet {

// An attribute as it is written in a start tag. Offsets count from the tag's "<".
struct MarkupAttribute {
  std::u16string_view name;
  std::u16string_view value;  // as written, without its quotes
  // What a new value replaces: from behind the name to behind the old value.
  std::size_t replaceStart;
  std::size_t replaceEnd;
};

// Reads the name and the attributes of a start tag. `tag` reaches from "<" to ">" and is the
// start or empty tag that a MarkupTokenizer found; an XML declaration can be read too.
//
// Reading is lenient: values may lack quotes or be missing, and what is not an attribute is
// skipped.
class StartTag {
 public:
  explicit StartTag(std::u16string_view tag);

  [[nodiscard]] std::u16string_view name() const { return name_; }

  // The next attribute, in the order in which they are written, or nothing after the last one.
  std::optional<MarkupAttribute> next();

  // The first attribute called `name` among those that next() has not yet passed.
  std::optional<MarkupAttribute> find(std::u16string_view name);

  // Where attributes can be added: in front of "/>" or ">".
  [[nodiscard]] std::size_t attributesEnd() const { return end_; }

 private:
  std::u16string_view readName();
  void skipSpace();
  void skipToName();
  std::u16string_view readValue();

  const char16_t* tag_;
  std::size_t at_;
  std::size_t end_;
  std::u16string_view name_;
};

}  // namespace brennet
