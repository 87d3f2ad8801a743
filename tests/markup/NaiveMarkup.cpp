#include "tests/markup/NaiveMarkup.h"

#include <algorithm>
#include <optional>

#include "markup/EntityTable.h"

namespace brennet::test {
namespace {

constexpr std::size_t kNone = std::u16string_view::npos;

bool isSpace(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

bool endsName(char16_t unit) {
  return unit <= u' ' || std::u16string_view(u"<>&/=\"'").find(unit) != kNone;
}

bool beginsName(char16_t unit) {
  return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') || unit == u'_' ||
         unit == u':' || unit >= 0x80;
}

std::u16string nameAt(std::u16string_view text, std::size_t at) {
  std::u16string name;
  while (at < text.size() && !endsName(text[at])) name += text[at++];
  return name;
}

std::u16string decimal(std::size_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

// The character that a reference stands for; 0 if none. `inside` is the text between "&" and ";".
char32_t referenced(std::u16string_view inside) {
  if (!inside.starts_with(u"#")) return entityCode(inside);
  const bool isHex = inside.starts_with(u"#x");
  const std::u16string_view digits = inside.substr(isHex ? 2 : 1);
  const std::u16string_view known = isHex ? u"0123456789abcdefABCDEF" : u"0123456789";
  char32_t code = 0;
  for (const char16_t digit : digits) {
    const std::size_t value = known.find(digit);
    if (value == kNone) return 0;
    code = code * (isHex ? 16 : 10) + static_cast<char32_t>(value < 16 ? value : value - 6);
    if (code > 0x10FFFF) return 0;
  }
  return code >= 0xD800 && code <= 0xDFFF ? 0 : code;
}

std::u16string resolved(std::u16string_view text) {
  std::u16string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t end = text[at] == u'&' ? text.find(u';', at) : kNone;
    const char32_t code = end == kNone ? 0 : referenced(text.substr(at + 1, end - at - 1));
    if (code == 0) {
      result += text[at];
      continue;
    }
    if (code >= 0x10000) {
      result += static_cast<char16_t>(0xD7C0 + (code >> 10U));
      result += static_cast<char16_t>(0xDC00 + (code & 0x3FFU));
    } else {
      result += static_cast<char16_t>(code);
    }
    at = end;
  }
  return result;
}

// The attributes in the text between the name and the end of a start tag.
std::vector<std::pair<std::u16string, std::u16string>> attributesIn(std::u16string_view text) {
  std::vector<std::pair<std::u16string, std::u16string>> attributes;
  std::size_t at = 0;
  const auto skipSpace = [&] {
    const std::size_t from = at;
    while (at < text.size() && isSpace(text[at])) ++at;
    return at != from;
  };
  const auto isQuote = [&] { return at < text.size() && (text[at] == u'"' || text[at] == u'\''); };
  const auto quoted = [&] {
    const std::size_t end = std::min(text.find(text[at], at + 1), text.size());
    const std::u16string_view value = text.substr(at + 1, end - at - 1);
    at = end + 1;
    return value;
  };
  while (at < text.size()) {
    if (isQuote()) {
      quoted();  // a value without a name
    } else if (endsName(text[at])) {
      ++at;
    } else {
      const std::u16string name = nameAt(text, at);
      at += name.size();
      std::u16string_view value;
      skipSpace();
      if (at < text.size() && text[at] == u'=') {
        ++at;
        const bool isApart = skipSpace();
        if (isQuote()) {
          value = quoted();
        } else if (!isApart) {
          const std::size_t from = at;
          while (at < text.size() && !isSpace(text[at]) && !isQuote()) ++at;
          value = text.substr(from, at - from);
        }
      }
      attributes.emplace_back(name, resolved(value));
    }
  }
  return attributes;
}

class NaiveParser {
 public:
  explicit NaiveParser(std::u16string_view text) : text_(text) {}

  NaiveDocument parse() {
    while (at_ < text_.size()) {
      if (text_[at_] == u'<') {
        token();
      } else {
        run_ += text_[at_++];
      }
    }
    closeAllBut(0, end_.value_or(text_.size()));
    if (document_.elements.empty()) log(u"no_root_element", {});
    const bool hasSibling = std::count_if(document_.elements.begin(), document_.elements.end(),
                                          [](const NaiveElement& e) { return e.depth == 0; }) > 1;
    document_.isWellFormed = !document_.elements.empty() && !hasSibling && !isRootUnclosed_;
    return std::move(document_);
  }

 private:
  struct Attribute {
    std::u16string_view name;
    std::u16string value;
  };

  [[nodiscard]] bool isAt(std::u16string_view what) const {
    return text_.substr(at_).starts_with(what);
  }

  void log(std::u16string_view event, const std::vector<Attribute>& attributes) {
    document_.log.append(u"<").append(event);
    for (const Attribute& attribute : attributes) {
      document_.log.append(u" ").append(attribute.name).append(u"=\"");
      document_.log.append(attribute.value).append(u"\"");
    }
    document_.log.append(u"/>");
  }

  // Text without a token in between is read as one piece.
  void endRun() {
    if (!open_.empty()) document_.elements[open_.back()].data += resolved(run_);
    run_.clear();
  }

  // The token ends in front of `end`.
  void finish(std::size_t end) {
    endRun();
    at_ = end;
  }

  // A token that begins as it should but has no end takes all that is left.
  void endless(std::u16string_view event, std::u16string_view kind) {
    std::vector<Attribute> attributes = {{u"offset", decimal(at_)}};
    if (!kind.empty()) attributes.insert(attributes.begin(), {u"type", std::u16string(kind)});
    log(event, attributes);
    end_ = at_;
    finish(text_.size());
  }

  // A token with an error ends behind the first ">" from `from` on.
  void wrong(std::u16string_view event, std::u16string_view kind, std::size_t from) {
    const std::size_t end = text_.find(u'>', from);
    if (end == kNone) return endless(u"unterminated_tag_syntax", kind);
    log(event, {{u"offset", decimal(at_)}});
    finish(end + 1);
  }

  void token() {
    const char16_t next = at_ + 1 < text_.size() ? text_[at_ + 1] : u'\0';
    if (next == u'/') {
      endTag();
    } else if (next == u'?') {
      const std::size_t end = text_.find(u"?>", at_ + 2);
      if (end == kNone) return endless(u"unterminated_tag_syntax", u"processing_instruction");
      finish(end + 2);
    } else if (next == u'!') {
      exclamation();
    } else if (beginsName(next)) {
      startTag();
    } else {
      log(u"first_tag_syntax", {{u"offset", decimal(at_)}});
      run_ += text_[at_++];
    }
  }

  void exclamation() {
    if (isAt(u"<!--")) {
      const std::size_t end = text_.find(u"-->", at_ + 4);
      if (end == kNone) return endless(u"comment_tag_syntax", {});
      return finish(end + 3);
    }
    if (isAt(u"<![CDATA[")) {
      const std::size_t start = at_ + 9;
      const std::size_t end = text_.find(u"]]>", start);
      if (end == kNone) return endless(u"cdata_section_syntax", {});
      finish(end + 3);
      if (!open_.empty()) {
        document_.elements[open_.back()].data += text_.substr(start, end - start);
      }
      return;
    }
    if (isAt(u"<!DOCTYPE")) return documentType();
    if (isAt(u"<!-")) return wrong(u"comment_tag_syntax", u"comment", at_ + 1);
    if (isAt(u"<![")) return wrong(u"cdata_section_syntax", u"cdata_section", at_ + 1);
    if (isAt(u"<!D")) return wrong(u"doctype_tag_syntax", u"document_type", at_ + 1);
    wrong(u"exclamation_tag_syntax", u"exclamation_tag", at_ + 1);
  }

  // Ends at the ">" outside brackets, quotes, comments and instructions.
  void documentType() {
    int depth = 0;
    std::size_t at = at_ + 9;
    const auto skip = [&](std::size_t opening, std::u16string_view closing) {
      const std::size_t end = text_.find(closing, at + opening);
      at = end == kNone ? text_.size() : end + closing.size();
    };
    while (at < text_.size()) {
      const std::u16string_view rest = text_.substr(at);
      if (rest[0] == u'"' || rest[0] == u'\'') {
        skip(1, rest.substr(0, 1));
      } else if (rest.starts_with(u"<!--")) {
        skip(4, u"-->");
      } else if (rest.starts_with(u"<?")) {
        skip(2, u"?>");
      } else {
        if (rest[0] == u'>' && depth == 0) return finish(at + 1);
        if (rest[0] == u'[') ++depth;
        if (rest[0] == u']' && --depth < 0) {
          return wrong(u"doctype_tag_syntax", u"document_type", at);
        }
        ++at;
      }
    }
    endless(u"unterminated_tag_syntax", u"document_type");
  }

  void startTag() {
    char16_t quote = 0;
    std::size_t end = at_;
    for (; end < text_.size() && (quote != 0 || text_[end] != u'>'); ++end) {
      if (quote != 0) {
        if (text_[end] == quote) quote = 0;
      } else if (text_[end] == u'"' || text_[end] == u'\'') {
        quote = text_[end];
      }
    }
    if (end == text_.size()) return endless(u"unterminated_tag_syntax", u"start_tag");
    const std::size_t start = at_;
    finish(end + 1);
    if (open_.empty() && !document_.elements.empty() && !hasSibling_) {
      hasSibling_ = true;
      log(u"root_has_sibling", {{u"offset", decimal(start)}});
    }
    const bool isEmpty = text_[end - 1] == u'/';
    const std::u16string name = nameAt(text_, start + 1);
    const std::size_t behindName = start + 1 + name.size();
    const std::size_t inside = end - (isEmpty ? 1 : 0) - behindName;
    document_.elements.push_back(
        {open_.size(), start, name, attributesIn(text_.substr(behindName, inside)), {}});
    if (!isEmpty) open_.push_back(document_.elements.size() - 1);
  }

  void endTag() {
    const std::size_t start = at_;
    const std::size_t end = text_.find_first_of(u"<>", start + 2);
    if (end == kNone || text_[end] == u'<') {
      log(u"unterminated_tag_syntax", {{u"type", u"end_tag"}, {u"offset", decimal(start)}});
      if (end == kNone) end_ = start;
      return finish(std::min(end, text_.size()));
    }
    finish(end + 1);
    const std::u16string name = nameAt(text_, start + 2);
    for (std::size_t depth = open_.size(); depth > 0; --depth) {
      if (document_.elements[open_[depth - 1]].name != name) continue;
      closeAllBut(depth, start);
      open_.pop_back();
      return;
    }
    log(u"lone_end_tag", {{u"tagname", name}, {u"offset", decimal(start)}});
  }

  // Leaves `depth` elements open; the others have no end tag of their own.
  void closeAllBut(std::size_t depth, std::size_t end) {
    endRun();
    while (open_.size() > depth) {
      const NaiveElement& element = document_.elements[open_.back()];
      if (element.depth == 0 && open_.back() == 0) isRootUnclosed_ = true;
      log(u"unended_start_tag", {{u"tagname", element.name},
                                 {u"offset", decimal(element.start)},
                                 {u"offset2", decimal(end)}});
      open_.pop_back();
    }
  }

  std::u16string_view text_;
  std::size_t at_ = 0;
  std::u16string run_;              // text since the last token
  std::vector<std::size_t> open_;   // indices of the open elements, the root first
  std::optional<std::size_t> end_;  // start of the token that takes all that is left
  bool hasSibling_ = false;
  bool isRootUnclosed_ = false;
  NaiveDocument document_;
};

}  // namespace

NaiveDocument parseNaively(std::u16string_view text) {
  return NaiveParser(text).parse();
}

}  // namespace brennet::test
