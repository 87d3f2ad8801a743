#include "markup/Escaping.h"

#include <gtest/gtest.h>

namespace brennet {
namespace {

std::u16string escaped(std::u16string_view text) {
  std::u16string out;
  appendEscaped(text, out);
  return out;
}

std::u16string unescaped(std::u16string_view text) {
  std::u16string out;
  appendUnescaped(text, out);
  return out;
}

std::u16string cdata(std::u16string_view text) {
  std::u16string out;
  appendCData(text, out);
  return out;
}

TEST(Escaping, WritesTheFiveCharactersAsEntities) {
  EXPECT_EQ(escaped(u"a<b>&\"c\"'d'"), u"a&lt;b&gt;&amp;&quot;c&quot;&apos;d&apos;");
  EXPECT_EQ(escaped(u""), u"");
  EXPECT_EQ(escaped(u"\u8c22\u8c22 nothing"), u"\u8c22\u8c22 nothing");
}

TEST(Escaping, AppendsToWhatIsThere) {
  std::u16string out = u"x";
  appendEscaped(u"<", out);
  appendUnescaped(u"&gt;", out);
  EXPECT_EQ(out, u"x&lt;>");
}

struct UnescapeCase {
  std::u16string_view written;
  std::u16string_view read;
};

TEST(EscapingUndone, ResolvesEntitiesAndCharacterReferences) {
  const UnescapeCase kCases[] = {
      {u"&lt;&gt;&amp;&quot;&apos;", u"<>&\"'"},
      {u"a&nbsp;b&diams;", u"a\u00A0b\u2666"},
      {u"&Auml;&auml;", u"\u00C4\u00E4"},
      {u"&thetasym;", u"\u03D1"},
      {u"&#65;&#x41;&#x4a;&#x4A;", u"AAJJ"},
      {u"&#0000000000000000065;", u"A"},
      {u"&#x1F600;", u"\U0001F600"},
      {u"&#1114111;", u"\U0010FFFF"},
      {u"&#xFFFF;", u"\uFFFF"},
      {u"&amp;lt;", u"&lt;"},
  };
  for (const UnescapeCase& test : kCases) EXPECT_EQ(unescaped(test.written), test.read);
}

TEST(EscapingUndone, LeavesWhatNamesNoCharacter) {
  const std::u16string_view kTexts[] = {
      u"&",
      u"&;",
      u"&#;",
      u"&#x;",
      u"&lt",
      u"&lt &gt",
      u"&bogus;",
      u"&LT;",
      u"&#0;",
      u"&#xD800;",
      u"&#xDFFF;",
      u"&#1114112;",
      u"&#x110000;",
      u"&#12a;",
      u"&#xg;",
      u"&#X41;",
      u"&# 65;",
      u"&#-1;",
      u"&#99999999999999999999;",
      u"&thetasymx;",
      u"&averylongname;",
  };
  for (const std::u16string_view text : kTexts) EXPECT_EQ(unescaped(text), text);
}

TEST(EscapingUndone, FindsAReferenceRightBehindABrokenOne) {
  EXPECT_EQ(unescaped(u"&&lt;&#&#65;&bogus&gt;"), u"&<&#A&bogus>");
}

TEST(EscapingUndone, GivesBackWhateverWasEscaped) {
  const std::u16string text = u"<a b=\"c\">&amp; 'x' &#65; ]]></a>";
  EXPECT_EQ(unescaped(escaped(text)), text);
}

TEST(EscapingCData, SplitsTheEndMarkBetweenTwoSections) {
  EXPECT_EQ(cdata(u"a]]>b"), u"<![CDATA[a]]]]><![CDATA[>b]]>");
  EXPECT_EQ(cdata(u"]]>]]>"), u"<![CDATA[]]]]><![CDATA[>]]]]><![CDATA[>]]>");
  EXPECT_EQ(cdata(u"]]"), u"<![CDATA[]]]]>");
  EXPECT_EQ(cdata(u""), u"<![CDATA[]]>");
}

}  // namespace
}  // namespace brennet
