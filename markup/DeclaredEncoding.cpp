#include "markup/DeclaredEncoding.h"

#include <algorithm>

#include "markup/MarkupTokenizer.h"
#include "markup/Names.h"
#include "markup/StartTag.h"
#include "markup/text/BucketTable.h"

namespace brennet {
namespace {

using Kind = MarkupToken::Kind;

// How much of a document is searched for a declaration: the same on reading and on writing.
constexpr std::size_t kReach = std::size_t{64} * 1024;

std::u16string_view trimmed(std::u16string_view text) {
  while (!text.empty() && isMarkupSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isMarkupSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::u16string_view tokenText(std::u16string_view text, const MarkupToken& token) {
  return text.substr(token.start, token.end - token.start);
}

// People who edit a file by hand leave white space where it does not belong.
std::u16string_view xmlEncoding(std::u16string_view text) {
  while (!text.empty() && isMarkupSpace(text.front())) text.remove_prefix(1);
  if (!text.starts_with(u"<?xml")) return {};
  const MarkupToken token = MarkupTokenizer(text).next();
  if (token.kind != Kind::Instruction) return {};
  StartTag declaration(tokenText(text, token));
  const auto encoding = declaration.find(u"encoding");
  const bool isDeclared = encoding && declaration.name() == u"xml";
  return isDeclared ? trimmed(encoding->value) : std::u16string_view();
}

// The charset in a content type such as "text/html; charset=gb2312".
std::u16string_view charsetOfContentType(std::u16string_view contentType) {
  constexpr std::u16string_view kCharset = u"charset=";
  for (std::size_t at = 0; at + kCharset.size() <= contentType.size(); ++at) {
    if (!equalIgnoringCase(contentType.substr(at, kCharset.size()), kCharset)) continue;
    const std::u16string_view rest = contentType.substr(at + kCharset.size());
    return rest.substr(0, rest.find_first_of(u"; \t\r\n"));
  }
  return {};
}

std::u16string_view charsetOfMeta(std::u16string_view tag) {
  StartTag meta(tag);
  bool isContentType = false;
  std::u16string_view charset;
  while (const auto attribute = meta.next()) {
    if (equalIgnoringCase(attribute->name, u"http-equiv")) {
      isContentType = equalIgnoringCase(attribute->value, u"Content-Type");
    } else if (equalIgnoringCase(attribute->name, u"content") && charset.empty()) {
      charset = charsetOfContentType(attribute->value);
    } else if (equalIgnoringCase(attribute->name, u"charset")) {
      charset = attribute->value;
    }
  }
  return isContentType ? charset : std::u16string_view();
}

std::u16string_view htmlEncoding(std::u16string_view text) {
  MarkupTokenizer tokenizer(text);
  bool isHtml = false;
  bool inHead = false;
  for (MarkupToken token = tokenizer.next(); token.kind != Kind::EndOfText;
       token = tokenizer.next()) {
    if (token.kind == Kind::EndTag && inHead) {
      if (equalIgnoringCase(leadingName(text.substr(token.start + 2)), u"head")) return {};
    }
    if (token.kind != Kind::StartTag && token.kind != Kind::EmptyTag) continue;
    const std::u16string_view name = leadingName(text.substr(token.start + 1));
    if (!isHtml && !equalIgnoringCase(name, u"html")) return {};
    isHtml = true;
    if (equalIgnoringCase(name, u"body")) return {};
    if (equalIgnoringCase(name, u"head")) inHead = true;
    if (!inHead || !equalIgnoringCase(name, u"meta")) continue;
    const std::u16string_view charset = charsetOfMeta(tokenText(text, token));
    if (!charset.empty()) return charset;
  }
  return {};
}

// `bytes` without the zeros, each as a unit of its own.
std::u16string widen(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  std::size_t length = 0;
  for (const char byte : bytes) {
    text[length] = static_cast<unsigned char>(byte);
    length += byte != 0 ? 1U : 0U;
  }
  text.resize(length);
  return text;
}

}  // namespace

std::u16string_view declaredEncoding(std::u16string_view text) {
  text = text.substr(0, kReach);
  const std::u16string_view encoding = xmlEncoding(text);
  return encoding.empty() ? htmlEncoding(text) : encoding;
}

std::u16string declaredEncodingOfBytes(std::string_view bytes) {
  bytes = bytes.substr(0, kReach);
  // Most files declare it at once, so that the rest need not be searched.
  const std::size_t end = bytes.find("?>");
  if (end != std::string_view::npos) {
    const std::u16string declaration = widen(bytes.substr(0, end + 2));
    const std::u16string_view encoding = xmlEncoding(declaration);
    if (!encoding.empty()) return std::u16string(encoding);
  }
  return std::u16string(declaredEncoding(widen(bytes)));
}

}  // namespace brennet
