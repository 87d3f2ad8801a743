#include "tests/markup/SameAsNaive.h"

#include "markup/MarkupDocument.h"
#include "tests/markup/NaiveMarkup.h"

namespace brennet::test {
namespace {

// Goes to the element that follows in the order of the text. `depth` is the depth of the main
// element, before and after.
bool goOn(MarkupDocument& document, std::size_t& depth) {
  if (document.intoElem()) {
    ++depth;
    if (document.findElem()) return true;
  } else {
    return document.findElem();
  }
  for (;;) {
    document.resetMainPos();
    if (!document.outOfElem()) return false;
    --depth;
    if (document.findElem()) return true;
  }
}

std::u16string shown(std::u16string_view what, std::u16string_view ours,
                     std::u16string_view naive) {
  std::u16string text(what);
  return text.append(u": ").append(ours).append(u" | ").append(naive);
}

std::u16string placeOf(std::size_t depth, std::size_t start) {
  const std::string text = std::to_string(depth) + "@" + std::to_string(start);
  return {text.begin(), text.end()};
}

std::u16string differenceOf(const MarkupDocument& document, std::size_t depth,
                            const NaiveElement& naive) {
  const std::u16string ours = placeOf(depth, document.mainOffset().value_or(0));
  if (ours != placeOf(naive.depth, naive.start)) {
    return shown(u"place", ours, placeOf(naive.depth, naive.start));
  }
  if (document.getTagName() != naive.name) return shown(u"name", document.getTagName(), naive.name);
  if (document.getData() != naive.data) return shown(u"data", document.getData(), naive.data);
  std::u16string seen = u" ";
  for (const auto& [name, value] : naive.attributes) {
    // Of two attributes with the same name, the first counts.
    if (seen.find(u" " + name + u" ") != std::u16string::npos) continue;
    seen.append(name).append(u" ");
    const std::u16string read = document.getAttrib(name);
    if (read != value) return shown(u"attribute " + name, read, value);
  }
  for (const std::u16string_view name : {u"a", u"b", u"id", u"x", u"ab", u"1"}) {
    if (seen.find(u" " + std::u16string(name) + u" ") != std::u16string::npos) continue;
    if (!document.getAttrib(name).empty()) return shown(u"more", name, document.getAttrib(name));
  }
  return {};
}

}  // namespace

std::u16string differenceToNaive(const std::u16string& text) {
  const NaiveDocument naive = parseNaively(text);
  MarkupDocument document;
  const bool isWellFormed = document.setDoc(text);
  if (isWellFormed != naive.isWellFormed) {
    return shown(u"well-formed", isWellFormed ? u"yes" : u"no",
                 naive.isWellFormed ? u"yes" : u"no");
  }
  // A document's log stops after the event that fills it.
  if (naive.log.substr(0, document.result().size()) != document.result() ||
      (document.result().size() < ResultLog::kFull && document.result() != naive.log)) {
    return shown(u"log", document.result(), naive.log);
  }
  std::size_t depth = 0;
  bool isThere = document.findElem();
  for (const NaiveElement& element : naive.elements) {
    if (!isThere) return shown(u"missing", {}, element.name);
    const std::u16string difference = differenceOf(document, depth, element);
    if (!difference.empty()) return difference;
    isThere = goOn(document, depth);
  }
  return isThere ? shown(u"more", document.getTagName(), {}) : std::u16string();
}

}  // namespace brennet::test
