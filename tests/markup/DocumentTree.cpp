#include "tests/markup/DocumentTree.h"

namespace brennet::test {

std::u16string treeOf(MarkupDocument& document) {
  while (document.outOfElem()) {
  }
  document.resetMainPos();
  std::u16string tree;
  std::u16string indent;
  for (;;) {
    if (document.findElem()) {
      tree.append(indent).append(document.getTagName());
      for (const char16_t* name : {u"a", u"b", u"id", u"x"}) {
        const std::u16string value = document.getAttrib(name);
        if (!value.empty()) tree.append(u" ").append(name).append(u"=").append(value);
      }
      tree.append(u" [").append(document.getData()).append(u"]\n");
      document.intoElem();
      indent += u' ';
    } else {
      document.resetMainPos();
      if (!document.outOfElem()) return tree;
      indent.pop_back();
    }
  }
}

std::u16string treeOf(std::u16string text) {
  MarkupDocument document;
  document.setDoc(std::move(text));
  return treeOf(document);
}

}  // namespace brennet::test
