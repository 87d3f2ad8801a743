// What the sample host reads from the game's files, and which changes it finds in them.

#include "samples/host/Sections.h"

#include <gtest/gtest.h>

namespace {

QString text(const char* utf8) {
  return QString::fromUtf8(utf8);
}

QStringList listed(const char* before, const char* after) {
  QStringList list;
  for (const Change& change :
       changesBetween(parseSections(text(before)), parseSections(text(after)))) {
    list += QStringLiteral("%1|%2|%3").arg(change.name, change.before, change.after);
  }
  return list;
}

TEST(Sections, HaveTheValuesOfAPreferenceFile) {
  const Sections sections = parseSections(
      text("stray=1\r\n[A]\r\none=1\r\ntwo=a=b\r\n\r\nno value\r\n[B]\r\n[A]\nthree=\n"));
  EXPECT_EQ(
      sections,
      (Sections{{text(""), {{text("stray"), text("1")}}},
                {text("[A]"),
                 {{text("one"), text("1")}, {text("two"), text("a=b")}, {text("three"), text("")}}},
                {text("[B]"), {}}}));
}

TEST(Sections, PutTheValuesOfARegistryExportInWords) {
  struct Row {
    const char* line;
    const char* name;
    const char* value;
  };
  const Row rows[] = {
      {"\"Code\"=dword:0000005a", "Code", "90"},
      {"\"Text\"=hex:43,54,52,4c", "Text", "\"CTRL\""},
      {"\"Text\"=hex:e4,b8,\\\r\n  ad", "Text", "\"中\""},
      {"\"Text\"=hex:", "Text", "\"\""},
      {"\"Name\"=\"text\"", "Name", "\"text\""},
      {"@=\"text\"", "@", "\"text\""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(parseSections(text(row.line)),
              (Sections{{QString(), {{text(row.name), text(row.value)}}}}))
        << row.line;
  }
}

TEST(Sections, TellWhatIsDifferent) {
  struct Row {
    const char* before;
    const char* after;
    QStringList changes;
  };
  const Row rows[] = {
      {"[A]\none=1\n", "[A]\none=1\n", {}},
      {"[A]\none=1\n", "[A]\none=2\n", {text("[A] one|1|2")}},
      {"[A]\none=1\n", "[A]\ntwo=2\n", {text("[A] one|1|"), text("[A] two||2")}},
      {"one=1\n", "one=2\n", {text("one|1|2")}},
      {"", "[A]\none=1\ntwo=2\n", {text("[A]||one=1, two=2")}},
      {"[A]\none=1\n", "", {text("[A]|one=1|")}},
      {"", "[A]\n", {text("[A]||no values")}},
      {"", "[A]\na=1\nb=1\nc=1\nd=1\ne=1\nf=1\n", {text("[A]||a=1, b=1, c=1, d=1, e=1, f=1")}},
      {"", "[A]\na=1\nb=1\nc=1\nd=1\ne=1\nf=1\ng=1\n", {text("[A]||7 values")}},
  };
  for (const Row& row : rows) EXPECT_EQ(listed(row.before, row.after), row.changes) << row.after;
}

}  // namespace
