#include "markup/StartTag.h"

#include <gtest/gtest.h>

#include "markup/Names.h"

namespace brennet {
namespace {

// The name and attributes of a tag, as "name(a=1)(b=2)".
std::u16string read(std::u16string_view text) {
  StartTag tag(text);
  std::u16string result(tag.name());
  while (const auto attribute = tag.next()) {
    result.append(u"(").append(attribute->name).append(u"=").append(attribute->value).append(u")");
  }
  return result;
}

TEST(StartTag, ReadsNameAndAttributes) {
  struct Case {
    std::u16string_view tag;
    std::u16string_view read;
  };
  const Case kCases[] = {
      {u"<a>", u"a"},
      {u"<a/>", u"a"},
      {u"<a />", u"a"},
      {u"<a b=\"1\">", u"a(b=1)"},
      {u"<a b='1' c=\"2\"/>", u"a(b=1)(c=2)"},
      {u"<a\r\n\tb = \"1\"\n>", u"a(b=1)"},
      {u"<a b=\"x>y\" c='\"'>", u"a(b=x>y)(c=\")"},
      {u"<a b=\"\">", u"a(b=)"},
      {u"<a b=\"1\"c=\"2\">", u"a(b=1)(c=2)"},
      {u"<?xml version=\"1.0\" encoding=\"gb2312\"?>", u"xml(version=1.0)(encoding=gb2312)"},
      {u"<\u4e2d \u6587=\"\u5b57\">", u"\u4e2d(\u6587=\u5b57)"},
      // Not well-formed, but read:
      {u"<a b>", u"a(b=)"},
      {u"<a b=>", u"a(b=)"},
      {u"<a b= c=\"1\">", u"a(b=)(c=1)"},
      {u"<a b=1 c=2/>", u"a(b=1)(c=2)"},
      {u"<a =b>", u"a(b=)"},
      {u"<a \"skipped=1\" c=\"2\">", u"a(c=2)"},
      {u"<a b=x\"y\" c=\"2\">", u"a(b=x)(c=2)"},
      {u"<a / b=\"1\">", u"a(b=1)"},
      {u"<a b=\"1\" <c>", u"a(b=1)(c=)"},
  };
  for (const Case& test : kCases) EXPECT_EQ(read(test.tag), test.read);
}

TEST(StartTag, FindsAnAttributeByItsExactName) {
  EXPECT_EQ(StartTag(u"<a ab=\"1\" b=\"2\" b=\"3\">").find(u"b")->value, u"2");
  EXPECT_FALSE(StartTag(u"<a b=\"2\">").find(u"B"));
  EXPECT_FALSE(StartTag(u"<a b=\"2\">").find(u""));
  EXPECT_FALSE(StartTag(u"<a b=\"2\">").find(u"a"));
}

TEST(Names, AreRefusedWhenTheyCannotStandInATag) {
  for (const std::u16string_view name : {u"a", u"_", u":", u"KeyInfo_0", u"a-b.c:d", u"\u4e2d"}) {
    EXPECT_TRUE(isName(name)) << testing::PrintToString(std::u16string(name));
  }
  for (const std::u16string_view name : {u"", u" ", u"a b", u"a\n", u"a<", u"a>", u"a&", u"a/",
                                         u"a=", u"a\"", u"a'", u"1a", u"-a", u"!a", u"?a"}) {
    EXPECT_FALSE(isName(name)) << testing::PrintToString(std::u16string(name));
  }
  EXPECT_FALSE(isName(std::u16string_view(u"a\0b", 3)));
}

}  // namespace
}  // namespace brennet
