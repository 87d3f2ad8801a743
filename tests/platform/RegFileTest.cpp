// The text of .reg files: what is read and what is skipped, and that writing loses nothing.

#include "platform/RegFile.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/Utf16Bytes.h"

namespace brennet::platform {
namespace {

using namespace std::string_literals;

constexpr std::u16string_view kKey = u"HKEY_CURRENT_USER\\Software\\Tollamere";
constexpr char kUnicodeHead[] =
    "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tollamere]\r\n";
constexpr char kAnsiHead[] = "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tollamere]\r\n";

std::string asUtf16(const std::string& text) {
  std::string bytes = "\xFF\xFE";
  appendUtf16Bytes(std::u16string(text.begin(), text.end()), bytes);
  return bytes;
}

// A file whose lines after that of the key are `lines`, which are ASCII.
RegFile fileWith(const std::string& lines) {
  RegFile file;
  EXPECT_TRUE(file.merge(asUtf16(kUnicodeHead + lines)));
  return file;
}

std::optional<RegistryValue> valueIn(const RegFile& file, std::u16string_view key,
                                     std::u16string_view name) {
  const RegistryValue* const value = file.find(key, name);
  return value != nullptr ? std::optional(*value) : std::nullopt;
}

std::string textData(std::u16string_view text) {
  std::string bytes;
  appendUtf16Bytes(text, bytes);
  return bytes + "\0\0"s;
}

struct LineCase {
  const char* when;
  std::string lines;
  RegistryValue value;  // of the name N
};

class RegFileReadValue : public testing::TestWithParam<LineCase> {};

TEST_P(RegFileReadValue, IsTheSameInBothEncodings) {
  const LineCase& row = GetParam();
  RegFile ansi;
  ASSERT_TRUE(ansi.merge(kAnsiHead + row.lines));
  for (const RegFile& file : {fileWith(row.lines), ansi}) {
    const RegistryValue* const value = file.find(kKey, u"N");
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->type, row.value.type);
    EXPECT_EQ(value->data, row.value.data);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RegFileReadValue,
    testing::Values(
        LineCase{"Dword", "\"N\"=dword:00000051", dwordValue(0x51)},
        LineCase{"ShortDword", "\"N\"=dword:5", dwordValue(5)},
        LineCase{"LargestDword", "\"N\"=dword:fFFFffff\r\n", dwordValue(0xFFFFFFFF)},
        LineCase{"NoBytes", "\"N\"=hex:\r\n", {kRegistryBinary, ""}},
        LineCase{"OneByte", "\"N\"=hex:51\r\n", {kRegistryBinary, "Q"}},
        LineCase{"BytesWithBlanks", "\"N\" = hex: 51 , 5 ,\t0\r\n", {kRegistryBinary, "Q\5\0"s}},
        LineCase{"BytesOnTwoLines", "\"N\"=hex:51,\\\r\n  52\r\n", {kRegistryBinary, "QR"}},
        LineCase{"BytesOnTwoLinesOfLf", "\"N\"=hex:51,\\\n  52\n", {kRegistryBinary, "QR"}},
        LineCase{"BytesOnManyLines",
                 "\"N\"=hex:51,52,\\ \r\n53,\\\r\n  54\r\n",
                 {kRegistryBinary, "QRST"}},
        LineCase{"OtherType", "\"N\"=hex(b):01,02\r\n", {11, "\1\2"}},
        LineCase{"DwordOfTwoBytes", "\"N\"=hex(4):51,00\r\n", {kRegistryDword, "Q\0"s}},
        LineCase{"Text", "\"N\"=\"a b\"\r\n", {kRegistryText, textData(u"a b")}},
        LineCase{"EmptyText", "\"N\"=\"\"\r\n", {kRegistryText, textData(u"")}},
        LineCase{"EscapedText", "\"N\"=\"\\\\a\\\"\"\r\n", {kRegistryText, textData(u"\\a\"")}},
        LineCase{"CommentBehindIt", "\"N\"=dword:1 ; one\r\n", dwordValue(1)},
        LineCase{"BlanksBeforeIt", " \t\"N\"=dword:1\r\n", dwordValue(1)},
        LineCase{"CommentsAround", ";\"N\"=dword:2\r\n\"N\"=dword:1\r\n; x\r\n", dwordValue(1)},
        LineCase{"TheLastOneCounts", "\"N\"=dword:1\r\n\"N\"=dword:2\r\n", dwordValue(2)},
        LineCase{"NameInOtherCase", "\"n\"=dword:1\r\n", dwordValue(1)},
        LineCase{"NonsenseBehindIt", "\"N\"=dword:1\r\n\"N\"=dword:2 3\r\nN=4\r\n=\r\n@\r\n\"\r\n",
                 dwordValue(1)}),
    [](const auto& test) { return std::string(test.param.when); });

class RegFilePassedOver : public testing::TestWithParam<const char*> {};

TEST_P(RegFilePassedOver, AsIfItWereNotThere) {
  const std::string lines = std::string(GetParam()) + "\r\n\"Next\"=dword:1\r\n";
  const RegFile file = fileWith(lines);
  EXPECT_EQ(file, fileWith("\"Next\"=dword:1\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Rows, RegFilePassedOver,
                         testing::Values("N=dword:1", "\"N=dword:1", "\"N\"dword:1", "\"N\"",
                                         "\"N\"=", "\"N\"=dword:", "\"N\"=dword:g",
                                         "\"N\"=dword:123456789", "\"N\"=dword:1x", "\"N\"=dword 1",
                                         "\"N\"=hex", "\"N\"=hex:5,", "\"N\"=hex:,5",
                                         "\"N\"=hex:5 5", "\"N\"=hex:123", "\"N\"=hex:5,\\",
                                         "\"N\"=hex(:5", "\"N\"=hex():5", "\"N\"=hex(3:5",
                                         "\"N\"=hex(123456789):5", "\"N\"=\"", "\"N\"=\"a\\",
                                         "\"N\"=\"a\" b", "\"N\"=--", "\"N\\\"=dword:1",
                                         "\"N\"=qword:1", "=dword:1", "\\", "]"));

TEST(RegFileText, NamesTheDefaultValueWithAnAt) {
  EXPECT_EQ(valueIn(fileWith("@=dword:1"), kKey, u""), dwordValue(1));
}

TEST(RegFileText, RemovesValuesAndKeys) {
  EXPECT_EQ(fileWith("\"N\"=dword:1\r\n\"N\"=-\r\n").find(kKey, u"N"), nullptr);
  const RegFile file = fileWith(
      "[HKEY_CURRENT_USER\\Software\\Tollamere\\A]\r\n[HKEY_CURRENT_"
      "USER\\Software\\Tollamere\\A\\B]"
      "\r\n[HKEY_CURRENT_USER\\Software\\Tollamere\\Az]\r\n"
      "[-HKEY_CURRENT_USER\\Software\\Tollamere\\a]\r\n\"N\"=dword:1\r\n");
  EXPECT_FALSE(file.hasKey(u"HKEY_CURRENT_USER\\Software\\Tollamere\\A"));
  EXPECT_FALSE(file.hasKey(u"HKEY_CURRENT_USER\\Software\\Tollamere\\A\\B"));
  EXPECT_TRUE(file.hasKey(u"HKEY_CURRENT_USER\\Software\\Tollamere\\Az"));
  EXPECT_EQ(file.find(kKey, u"N"), nullptr) << "a value below a deletion";
}

TEST(RegFileText, KeepsOutOfKeysThatMakeNoSense) {
  for (const char* const key :
       {"[HKEY_CURRENT_USER\\Software\\Tollamere", "[]", "[Software]", "[HKEY_NOBODY\\a]",
        "[HKEY_CURRENT_USER\\\\a]", "[HKEY_CURRENT_USER\\a\\]", "[-]", "[-HKEY_CURRENT_USER]"}) {
    EXPECT_EQ(fileWith(key + "\r\n\"N\"=dword:1\r\n"s), fileWith("")) << key;
  }
}

TEST(RegFileText, DoesNotTakeAKeyForMoreBytes) {
  const RegFile file =
      fileWith("\"N\"=hex:1,\\\r\n[HKEY_CURRENT_USER\\Other]\r\n\"N\"=dword:1\r\n");
  EXPECT_EQ(file.find(kKey, u"N"), nullptr);
  EXPECT_EQ(valueIn(file, u"HKEY_CURRENT_USER\\Other", u"N"), dwordValue(1));
}

TEST(RegFileText, IsReadInTheAnsiCodePage) {
  // The second byte of the pair 0x81 0x5C is a backslash, that of 0xD0 0xBB is not.
  RegFile file;
  ASSERT_TRUE(file.merge(kAnsiHead + "\"\xD0\xBB\x81\x5C\"=hex(1):d0,bb,00\r\n"s));
  const RegistryValue* const value = file.find(kKey, u"\u8C22\u4E57");
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->data, textData(u"\u8C22"));
  // The same for texts with variables and lists of texts; other bytes are not texts.
  ASSERT_TRUE(file.merge(kAnsiHead + "\"E\"=hex(2):d0,bb\r\n\"L\"=hex(7):d0,bb\r\n"
                                     "\"B\"=hex(8):d0,bb\r\n"s));
  EXPECT_EQ(valueIn(file, kKey, u"E"), (RegistryValue{2, textData(u"\u8C22").substr(0, 2)}));
  EXPECT_EQ(valueIn(file, kKey, u"L"), (RegistryValue{7, textData(u"\u8C22").substr(0, 2)}));
  EXPECT_EQ(valueIn(file, kKey, u"B"), (RegistryValue{8, "\xD0\xBB"}));
  // Texts in files of the later version are UTF-16 even where the file is not.
  ASSERT_TRUE(file.merge(kUnicodeHead + "\"U\"=hex(1):22,8c,00,00\r\n"s));
  EXPECT_EQ(valueIn(file, kKey, u"U"), (RegistryValue{kRegistryText, textData(u"\u8C22")}));
}

TEST(RegFileText, IsNoneWithoutItsFirstLine) {
  const std::string unmarked = asUtf16(kUnicodeHead + "\"N\"=dword:1\r\n"s).substr(2);
  for (const std::string& bytes :
       {""s, "\r\n"s, "REGEDIT"s, "REGEDIT5\r\n"s, " REGEDIT4\r\n"s, "\0"s, "\xFF\xFE"s, "\xFF"s,
        "\xEF\xBB\xBFREGEDIT4\r\n"s, "\xFE\xFF\0R"s, unmarked, std::string(10 << 20, 'x')}) {
    RegFile file = fileWith("\"N\"=dword:7\r\n");
    EXPECT_FALSE(file.merge(bytes));
    EXPECT_EQ(file, fileWith("\"N\"=dword:7\r\n"));
  }
}

TEST(RegFileText, MayBeTenMegabytesLong) {
  std::string lines;
  std::string expected;
  for (int i = 0; lines.size() < 5U << 20U; ++i) {
    lines += "\"N" + std::to_string(i) + "\"=dword:1\r\n";
  }
  lines += "\"Bytes\"=hex:00";
  while (lines.size() < 10U << 20U) lines += ",\\\r\n  00,01,02,03,04,05,06,07,08,09";
  const RegFile file = fileWith(lines + "\r\n\"Last\"=dword:1\r\n");
  EXPECT_EQ(valueIn(file, kKey, u"Last"), dwordValue(1));
  ASSERT_NE(file.find(kKey, u"Bytes"), nullptr);
  EXPECT_GT(file.find(kKey, u"Bytes")->data.size(), 1U << 20U);
}

TEST(RegFileContent, IsTheSameAfterWritingAndReading) {
  RegFile file;
  file.createKey(kKey);
  file.createKey(u"HKEY_CURRENT_USER\\Soft ware\\\u8C22]\\[x");
  for (std::uint32_t type = 0; type < 12; ++type) {
    const std::u16string number(1, static_cast<char16_t>(u'a' + type));
    EXPECT_TRUE(file.set(kKey, number + u"0", {type, ""}));
    EXPECT_TRUE(file.set(kKey, number + u"1", {type, "\0"s}));
    EXPECT_TRUE(file.set(kKey, number + u"2", {type, textData(u"a\"\\\u8C22")}));
    EXPECT_TRUE(file.set(kKey, number + u"3", {type, textData(u"a\r\n")}));
    EXPECT_TRUE(file.set(kKey, number + u"4", {type, std::string(300, '\xFF')}));
  }
  EXPECT_TRUE(file.set(kKey, u"", dwordValue(1)));
  EXPECT_TRUE(file.set(kKey, u"a=\"\\;[\u8C22", dwordValue(0x89ABCDEF)));
  RegFile again;
  ASSERT_TRUE(again.merge(file.serialize()));
  EXPECT_EQ(again, file);
}

TEST(RegFileContent, IsWrittenInTheShortestForm) {
  struct Row {
    RegistryValue value;
    std::u16string_view line;
  };
  const Row kRows[] = {
      {dwordValue(0x89ABCDEF), u"\"N\"=dword:89abcdef"},
      {{kRegistryDword, "\1"s}, u"\"N\"=hex(00000004):01"},
      {{kRegistryText, textData(u"a \"b\" \\")}, u"\"N\"=\"a \\\"b\\\" \\\\\""},
      {{kRegistryText, textData(u"")}, u"\"N\"=\"\""},
      {{kRegistryText, textData(u"\x1F")}, u"\"N\"=hex(00000001):1f,00,00,00"},
      {{kRegistryText, "a\0"s}, u"\"N\"=hex(00000001):61,00"},
      {{kRegistryText, "a\0\0"s}, u"\"N\"=hex(00000001):61,00,00"},
      {{kRegistryText, ""}, u"\"N\"=hex(00000001):"},
      {{kRegistryBinary, "\1\xFE"s}, u"\"N\"=hex:01,fe"},
  };
  for (const Row& row : kRows) {
    RegFile file;
    file.createKey(kKey);
    ASSERT_TRUE(file.set(kKey, u"N", row.value));
    const std::u16string text = utf16FromBytes(file.serialize());
    const std::size_t line = text.find(u"\"N\"=");
    ASSERT_NE(line, std::u16string::npos);
    EXPECT_EQ(text.substr(line, text.find(u"\r\n", line) - line), row.line);
  }
}

TEST(RegFileContent, RefusesWhatALineCannotHold) {
  RegFile file;
  file.createKey(kKey);
  const RegFile before = file;
  EXPECT_FALSE(file.set(kKey, u"a\nb", dwordValue(1)));
  EXPECT_FALSE(file.set(u"HKEY_CURRENT_USER\\Other", u"N", dwordValue(1)));
  file.createKey(u"HKEY_CURRENT_USER\\a\rb");
  file.createKey(u"");
  file.remove(kKey, u"N");
  EXPECT_EQ(file, before);
}

TEST(RegFileContent, TakesAsciiLettersInEitherCase) {
  RegFile file;
  file.createKey(u"HKEY_CURRENT_USER\\A-Z");
  EXPECT_TRUE(file.set(u"HKEY_Current_User\\a-z", u"AZ", dwordValue(1)));
  EXPECT_TRUE(file.set(u"HKEY_CURRENT_USER\\A-z", u"az", dwordValue(2)));
  EXPECT_TRUE(file.set(u"HKEY_CURRENT_USER\\A-Z", u"[", dwordValue(3)));
  EXPECT_TRUE(file.set(u"HKEY_CURRENT_USER\\A-Z", u"{", dwordValue(4)));
  EXPECT_EQ(valueIn(file, u"hkey_current_user\\a-Z", u"Az"), dwordValue(2));
  EXPECT_EQ(valueIn(file, u"HKEY_CURRENT_USER\\A-Z", u"["), dwordValue(3));
}

TEST(RegFileContent, HasTheKeysAboveAKey) {
  RegFile file;
  file.createKey(u"HKEY_CURRENT_USER\\A b\\C");
  EXPECT_TRUE(file.hasKey(u"HKEY_CURRENT_USER\\a B"));
  EXPECT_FALSE(file.hasKey(u"HKEY_CURRENT_USER\\A"));
  EXPECT_TRUE(file.set(u"hkey_current_user\\a b", u"N", dwordValue(1)));
  file.deleteKey(u"HKEY_CURRENT_USER\\A b\\C");
  EXPECT_TRUE(file.hasKey(u"HKEY_CURRENT_USER\\A b"));
  file.deleteKey(u"HKEY_CURRENT_USER\\A b");
  EXPECT_TRUE(file.hasKey(u"HKEY_CURRENT_USER"));
  EXPECT_EQ(file.find(u"HKEY_CURRENT_USER\\A b", u"N"), nullptr);
}

}  // namespace
}  // namespace brennet::platform
