// Whatever is edited, the document's idea of its tree stays the one that its text gives.
#include <gtest/gtest.h>

#include <random>

#include "markup/MarkupDocument.h"
#include "markup/MarkupWriter.h"
#include "tests/markup/DocumentTree.h"

namespace brennet {
namespace {

constexpr std::u16string_view kNames[] = {u"a", u"b", u"id", u"x", u"ab"};
constexpr std::u16string_view kValues[] = {
    u"", u"1", u" ", u"<b>", u"a]]>b", u"\"'&", u"&lt;", u"\u8c22\u8c22", u"a longer value, 65280"};
constexpr std::u16string_view kPieces[] = {
    u"<a>",          u"<b id='1'>",      u"</a>",   u"</b>", u"<ab/>", u"text", u" < ",
    u"<!-- <a> -->", u"<![CDATA[<b>]]>", u"<?p ?>", u"\r\n", u"&amp;", u"</x ", u"<!x>",
    u"<a x=1 b>",    u"<x a=\"/>\"/>",   u"</>",    u"<1"};
constexpr std::u16string_view kTails[] = {u"", u"</a></b></a>", u"<!-- ", u"<![CDATA[", u"<a x=\""};

class RandomEdits {
 public:
  explicit RandomEdits(unsigned seed) : random_(seed) {}

  std::u16string text() {
    std::u16string text = u"<a>";
    for (std::size_t i = below(20); i > 0; --i) text += pick(kPieces);
    return text + std::u16string(pick(kTails));
  }

  void goSomewhere(MarkupDocument& document) {
    document.findElem();
    for (std::size_t i = below(8); i > 0; --i) {
      switch (below(5)) {
        case 0:
          document.findElem();
          break;
        case 1:
          document.findChildElem();
          break;
        case 2:
          document.intoElem();
          break;
        case 3:
          document.outOfElem();
          break;
        default:
          if (below(3) == 0) document.resetMainPos();
      }
    }
  }

  void edit(MarkupDocument& document) {
    const std::uint32_t flags = below(3) == 0 ? std::uint32_t{MarkupDocument::kCData} : 0U;
    switch (below(7)) {
      case 0:
        document.setAttrib(pick(kNames), pick(kValues));
        break;
      case 1:
        document.setChildAttrib(pick(kNames), pick(kValues));
        break;
      case 2:
        if (below(3) == 0) document.setData(pick(kValues), flags);
        break;
      case 3:
        document.setChildData(pick(kValues), flags);
        break;
      case 4:
        document.addElem(pick(kNames), pick(kValues), flags);
        break;
      case 5:
        document.addChildren(family());
        break;
      default:
        document.addElem(pick(kNames), pick(kValues), flags | MarkupDocument::kChild);
    }
  }

  std::size_t below(std::size_t count) { return random_() % count; }

 private:
  MarkupWriter family() {
    MarkupWriter writer;
    writer.open(pick(kNames));
    for (std::size_t i = below(3); i > 0; --i) writer.element(pick(kNames), pick(kValues));
    writer.close();
    if (below(2) == 0) writer.element(pick(kNames), pick(kValues));
    return writer;
  }

  template <std::size_t kCount>
  std::u16string_view pick(const std::u16string_view (&from)[kCount]) {
    return from[below(kCount)];
  }

  std::mt19937 random_;
};

TEST(EditsProperty, LeaveTheTreeThatAFreshParseFinds) {
  for (unsigned seed = 0; seed < 3000; ++seed) {
    RandomEdits edits(seed);
    MarkupDocument document;
    document.setDoc(edits.text());
    for (int round = 0; round < 6; ++round) {
      const std::u16string before = document.doc();
      edits.goSomewhere(document);
      for (std::size_t i = 1 + edits.below(3); i > 0; --i) edits.edit(document);
      const std::u16string after = document.doc();
      ASSERT_EQ(test::treeOf(document), test::treeOf(after))
          << "seed " << seed << ", from " << testing::PrintToString(before) << " to "
          << testing::PrintToString(after);
    }
  }
}

}  // namespace
}  // namespace brennet
