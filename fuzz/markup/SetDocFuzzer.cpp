// Any text as a document: it parses, can be walked and read, and after any edits the document's
// own tree is the one that a fresh parse of its text finds.
//
// Input: the number of edits, a byte for each edit, and the text, one unit a byte.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Target.h"
#include "markup/MarkupDocument.h"

namespace brennet {
namespace {

using fuzz::require;

constexpr std::u16string_view kNames[] = {u"a", u"b", u"id", u"xml"};
constexpr std::u16string_view kValues[] = {u"", u"1", u"<b>&]]>\"'", u" \r\n"};

std::u16string unitsOf(std::string_view bytes) {
  std::u16string text;
  for (const char byte : bytes) text.push_back(static_cast<unsigned char>(byte));
  return text;
}

// Depth, name, attributes and data of every element, in order.
std::u16string treeOf(MarkupDocument& document) {
  while (document.outOfElem()) {
  }
  document.resetMainPos();
  std::u16string tree;
  char16_t depth = 0;
  for (;;) {
    if (document.findElem()) {
      tree.append(1, depth++).append(document.getTagName()).append(u" ");
      for (const std::u16string_view name : kNames) {
        tree.append(document.getAttrib(name)).append(u",");
      }
      tree.append(document.getData());
      document.intoElem();
    } else {
      document.resetMainPos();
      if (!document.outOfElem()) return tree;
      --depth;
    }
  }
}

void move(MarkupDocument& document, unsigned choice) {
  switch (choice) {
    case 0:
      document.findElem();
      break;
    case 1:
      document.findChildElem();
      break;
    case 2:
      document.intoElem();
      break;
    default:
      document.outOfElem();
  }
}

void changeContent(MarkupDocument& document, unsigned choice, std::u16string_view value,
                   std::uint32_t flags) {
  switch (choice) {
    case 0:
      document.setData(value, flags);
      break;
    case 1:
      document.setChildAttrib(kNames[flags != 0 ? 1 : 0], value);
      break;
    default:
      document.setChildData(value, flags);
  }
}

void change(MarkupDocument& document, std::uint8_t byte) {
  const std::u16string_view name = kNames[byte >> 3U & 3U];
  const std::u16string_view value = kValues[byte >> 5U & 3U];
  const std::uint32_t flags = byte >= 0x80 ? std::uint32_t{MarkupDocument::kCData} : 0U;
  switch (byte & 3U) {
    case 0:
      document.setAttrib(name, value);
      break;
    case 1:
      changeContent(document, byte >> 3U & 3U, value, flags);
      break;
    case 2:
      document.addElem(name, value, flags);
      break;
    default:
      document.addElem(name, value, flags | MarkupDocument::kChild);
  }
}

void checkDocument(std::string_view input) {
  if (input.empty()) return;
  const std::size_t most = static_cast<unsigned char>(input[0]) % 16U;
  const std::string_view edits = input.substr(1, most);
  const std::u16string text = unitsOf(input.substr(1 + edits.size()));

  MarkupDocument document;
  document.setDoc(text);
  require(document.doc() == text);
  treeOf(document);
  for (const char edit : edits) {
    const auto byte = static_cast<std::uint8_t>(edit);
    if ((byte & 4U) != 0) {
      move(document, byte & 3U);
    } else {
      change(document, byte);
    }
  }
  MarkupDocument again;
  again.setDoc(document.doc());
  require(treeOf(document) == treeOf(again));
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return editsGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkDocument(brennet::fuzz::bytesOf(data, size));
  return 0;
}
