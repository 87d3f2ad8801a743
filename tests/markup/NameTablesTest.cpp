// The two tables of names: entities and encodings.
#include <gtest/gtest.h>

#include "markup/EntityTable.h"
#include "markup/text/BucketTable.h"
#include "markup/text/EncodingNames.h"
#include "tests/markup/TableRows.h"

namespace brennet {
namespace {

using test::paddedNumber;
using test::readTableRows;
using test::TableRow;

// Counts how often `entry` begins an entry of `bucket`, walking it entry by entry.
int countEntries(std::u16string_view bucket, std::size_t lengthDigits, std::size_t codeDigits,
                 std::u16string_view entry) {
  int count = 0;
  while (!bucket.empty()) {
    std::size_t length = 0;
    for (std::size_t i = 0; i < lengthDigits; ++i) {
      length = length * 10 + static_cast<std::size_t>(bucket[i] - u'0');
    }
    const std::size_t size = lengthDigits + codeDigits + length;
    if (bucket.size() < size) return -1;
    if (bucket.substr(0, size) == entry) ++count;
    bucket.remove_prefix(size);
  }
  return count;
}

TEST(EntityTable, KnowsEveryNameOfHtml4AndApos) {
  const auto rows = readTableRows("entities.csv", ',');
  ASSERT_EQ(rows.size(), 253U);
  for (const TableRow& row : rows) {
    EXPECT_EQ(entityCode(row.name), row.code) << testing::PrintToString(row.name);
    EXPECT_LE(row.name.size(), kLongestEntityName);
  }
}

TEST(EntityTable, KeepsEveryNameInABucketThatIsOneString) {
  for (const TableRow& row : readTableRows("entities.csv", ',')) {
    const std::u16string entry =
        paddedNumber(row.name.size(), 1) + paddedNumber(row.code, 4) + row.name;
    EXPECT_EQ(countEntries(entityBucket(row.name), 1, 4, entry), 1)
        << testing::PrintToString(entry);
  }
  EXPECT_NE(entityBucket(u"amp").find(u"30038amp"), std::u16string_view::npos);
  EXPECT_NE(entityBucket(u"nbsp").find(u"40160nbsp"), std::u16string_view::npos);
}

TEST(EntityTable, PutsFormsOfANameInOneBucketAndTellsThemApart) {
  EXPECT_EQ(entityBucket(u"Auml").data(), entityBucket(u"auml").data());
  EXPECT_EQ(entityCode(u"Auml"), 196U);
  EXPECT_EQ(entityCode(u"auml"), 228U);
  EXPECT_EQ(entityCode(u"AUML"), 0U);
}

TEST(EntityTable, KnowsNoOtherName) {
  for (const char16_t* name : {u"", u"am", u"ampx", u"AMP", u"38", u"\u4e2d"}) {
    EXPECT_EQ(entityCode(name), 0U) << testing::PrintToString(name);
  }
}

TEST(EncodingNames, KnowsEveryNameInAnyCase) {
  const auto rows = readTableRows("encodings.csv", ';');
  ASSERT_EQ(rows.size(), 407U);
  for (const TableRow& row : rows) {
    EXPECT_EQ(encodingToCodePage(row.name), row.code) << testing::PrintToString(row.name);
    std::u16string upper = row.name;
    for (char16_t& unit : upper) {
      if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - 32);
    }
    EXPECT_EQ(encodingToCodePage(upper), row.code) << testing::PrintToString(upper);
  }
}

TEST(EncodingNames, KeepsEveryNameInABucketThatIsOneString) {
  for (const TableRow& row : readTableRows("encodings.csv", ';')) {
    const std::u16string entry =
        paddedNumber(row.name.size(), 2) + paddedNumber(row.code, 5) + row.name;
    EXPECT_EQ(countEntries(encodingBucket(row.name), 2, 5, entry), 1)
        << testing::PrintToString(entry);
  }
  EXPECT_NE(encodingBucket(u"ibm437").find(u"0600437ibm437"), std::u16string_view::npos);
  EXPECT_NE(encodingBucket(u"ksc_5601").find(u"0800949ksc_5601"), std::u16string_view::npos);
  EXPECT_NE(encodingBucket(u"unicode-1-1-utf-8").find(u"1765001unicode-1-1-utf-8"),
            std::u16string_view::npos);
}

TEST(EncodingNames, KnowsTheTellingOnes) {
  const NamedCode kRows[] = {
      {u"UTF-8", 65001},       {u"utf-16", 1200},     {u"utf-16le", 1200}, {u"ucs-2", 1200},
      {u"unicode", 1200},      {u"UTF-16BE", 1201},   {u"utf-32", 12000},  {u"GB2312", 936},
      {u"cp936", 936},         {u"windows-936", 936}, {u"gb18030", 54936}, {u"Big5", 950},
      {u"Shift_JIS", 932},     {u"US-ASCII", 20127},  {u"ascii", 20127},   {u"ISO-8859-1", 28591},
      {u"windows-1252", 1252},
  };
  for (const NamedCode& row : kRows) EXPECT_EQ(encodingToCodePage(row.name), row.code);
}

TEST(EncodingNames, GiveNoCodePageForAnythingElse) {
  for (const char16_t* name : {u"", u"utf", u"utf-8 ", u" gb2312", u"936", u"\u4e2d\u6587"}) {
    EXPECT_EQ(encodingToCodePage(name), 0U) << testing::PrintToString(name);
  }
}

}  // namespace
}  // namespace brennet
