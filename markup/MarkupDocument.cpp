#include "markup/MarkupDocument.h"

#include <utility>

#include "markup/DeclaredEncoding.h"
#include "markup/ElementContent.h"
#include "markup/Escaping.h"
#include "markup/MarkupParser.h"
#include "markup/Names.h"
#include "markup/text/TextFile.h"

namespace brennet {

bool MarkupDocument::load(std::u16string_view path, std::size_t blockSize) {
  if ((docFlags_ & (kReading | kWriting)) != 0) return false;
  ResultLog log;
  std::u16string text;
  TextForm form;
  if (!readTextFile(path, declaredEncodingOfBytes, text, log, blockSize, &form)) {
    log_ = std::move(log);
    return false;
  }
  return parse(std::move(text), std::move(log), form);
}

bool MarkupDocument::setDoc(std::u16string text) {
  return parse(std::move(text), ResultLog(), TextForm());
}

bool MarkupDocument::parse(std::u16string text, ResultLog log, TextForm form) {
  if (text.size() > kLongestMarkup) {
    log_ = std::move(log);
    return false;
  }
  // What can throw comes first.
  ElementIndex index = parseMarkup(text, log);
  text_ = std::move(text);
  index_ = std::move(index);
  log_ = std::move(log);
  form_ = form;
  parents_.clear();
  main_ = child_ = 0;
  const ElementNumber root = index_.firstChild(0);
  return root != 0 && index_.next(0, root) == 0 && !index_[root].has(ElementRecord::kError);
}

bool MarkupDocument::save(std::u16string_view path, platform::OldContent old) {
  if ((docFlags_ & (kReading | kWriting)) != 0) return false;
  std::u16string_view encoding = declaredEncoding(text_);
  if (encoding.empty() && !text_.empty()) encoding = u"UTF-8";
  ResultLog log;
  const bool written = writeTextFile(path, text_, encoding, log, form_, old);
  log_ = std::move(log);
  return written;
}

bool MarkupDocument::findElem(std::u16string_view name) {
  if ((docFlags_ & kWriting) != 0) return false;
  const ElementNumber found = findChild(parent(), main_, name);
  if (found == 0) return false;
  main_ = found;
  child_ = 0;
  return true;
}

bool MarkupDocument::findChildElem(std::u16string_view name) {
  if ((docFlags_ & (kReading | kWriting)) != 0) return false;
  if (main_ == 0 && !findElem()) return false;
  const ElementNumber found = findChild(main_, child_, name);
  if (found == 0) return false;
  child_ = found;
  return true;
}

// The next child of `parent` called `name` (any, if empty) behind its child `behind`, or its first
// one if that is 0. Returns 0 if there is none.
ElementNumber MarkupDocument::findChild(ElementNumber parent, ElementNumber behind,
                                        std::u16string_view name) const {
  if (name.empty()) {
    return behind == 0 ? index_.firstChild(parent) : index_.next(parent, behind);
  }
  if (leadingName(name).size() != name.size()) return 0;  // no element can have this name
  // Comparing the units at the ends of the name rules out most elements at once.
  const auto isCalled = [text = text_.data(), name](const ElementRecord& record) {
    const char16_t* const tag = text + record.start + 1;
    return name.size() + 1 < record.startTagLength && tag[0] == name[0] &&
           !isNameUnit(tag[name.size()]) && std::u16string_view(tag, name.size()) == name;
  };
  const ElementNumber end = index_.behind(parent);
  ElementNumber element = behind == 0 ? parent + 1 : index_.behind(behind);
  while (element < end && !isCalled(index_[element])) element = index_.behind(element);
  return element < end ? element : 0;
}

std::u16string_view MarkupDocument::getTagName() const {
  return main_ == 0 ? std::u16string_view() : StartTag(startTagOf(main_)).name();
}

std::u16string MarkupDocument::getAttrib(std::u16string_view name) const {
  return attributeOf(main_, name);
}

std::u16string MarkupDocument::getChildAttrib(std::u16string_view name) const {
  return attributeOf(child_, name);
}

std::u16string MarkupDocument::getData() const {
  std::u16string buffer;
  return std::u16string(dataOf(main_, buffer));
}

std::u16string MarkupDocument::getChildData() const {
  std::u16string buffer;
  return std::u16string(dataOf(child_, buffer));
}

std::u16string_view MarkupDocument::getData(std::u16string& buffer) const {
  return dataOf(main_, buffer);
}

std::u16string_view MarkupDocument::getChildData(std::u16string& buffer) const {
  return dataOf(child_, buffer);
}

bool MarkupDocument::intoElem() {
  if (main_ == 0) return false;
  parents_.push_back(main_);
  main_ = child_;
  child_ = 0;
  return true;
}

bool MarkupDocument::outOfElem() {
  if (parents_.empty()) return false;
  child_ = main_;
  main_ = parent();
  parents_.pop_back();
  return true;
}

void MarkupDocument::resetMainPos() {
  main_ = 0;
  child_ = 0;
}

std::optional<std::size_t> MarkupDocument::offsetOf(ElementNumber element) const {
  if (element == 0) return std::nullopt;
  return index_[element].start;
}

std::u16string_view MarkupDocument::startTagOf(ElementNumber element) const {
  const ElementRecord& record = index_[element];
  return std::u16string_view(text_).substr(record.start, record.startTagLength);
}

std::u16string MarkupDocument::attributeOf(ElementNumber element, std::u16string_view name) const {
  if (element == 0) return {};
  const auto attribute = StartTag(startTagOf(element)).find(name);
  return attribute ? unescaped(attribute->value) : std::u16string();
}

std::u16string_view MarkupDocument::dataOf(ElementNumber element, std::u16string& buffer) const {
  if (element == 0) return {};
  const ElementContent content(text_, index_, element);
  if (content.isPlain()) return content.text();
  buffer = content.data();
  return buffer;
}

}  // namespace brennet
