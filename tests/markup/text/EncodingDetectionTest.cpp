#include "markup/text/EncodingDetection.h"

#include <gtest/gtest.h>

#include <span>

#include "markup/DeclaredEncoding.h"

namespace brennet {
namespace {

using namespace std::string_view_literals;
using Source = DetectedEncoding::Source;

TEST(DeclaredEncoding, IsReadFromTheXmlDeclarationOrTheHtmlHead) {
  struct Case {
    std::u16string_view text;
    std::u16string_view encoding;
  };
  const Case kCases[] = {
      {u"<?xml version=\"1.0\" encoding=\"gb2312\"?><a/>", u"gb2312"},
      {u"<?xml version='1.0' encoding='UTF-8' standalone='yes'?>", u"UTF-8"},
      {u"<?xml version=\"1.0\"?><a encoding=\"big5\"/>", u""},
      {u"<?xml-stylesheet encoding=\"big5\"?><a/>", u""},
      {u"<?xml encoding=\"big5\"", u""},
      {u"<a/><?xml version=\"1.0\" encoding=\"gb2312\"?>", u""},
      {u"", u""},
      {u"<html><head><meta http-equiv=\"Content-Type\" content=\"text/html; charset=gb2312\">",
       u"gb2312"},
      {u"<!DOCTYPE html><HTML><HEAD><META HTTP-EQUIV='content-type' CONTENT='text/html; "
       u"CHARSET=Big5; x'/>",
       u"Big5"},
      {u"<html><head><meta http-equiv=\"Content-Type\" charset=\"koi8-r\"/>", u"koi8-r"},
      {u"<html><head><meta name=\"a\" content=\"charset=no\"><meta http-equiv=\"Content-Type\" "
       u"content=\"text/html; charset=yes\">",
       u"yes"},
      {u"<html><head></head><meta http-equiv=\"Content-Type\" content=\"charset=gb2312\">", u""},
      {u"<html><meta http-equiv=\"Content-Type\" content=\"charset=gb2312\"><head>", u""},
      {u"<html><body><meta http-equiv=\"Content-Type\" content=\"charset=gb2312\">", u""},
      {u"<html><head><meta http-equiv=\"Refresh\" content=\"charset=gb2312\">", u""},
      {u"<doc><head><meta http-equiv=\"Content-Type\" content=\"charset=gb2312\"/></head></doc>",
       u""},
  };
  for (const Case& test : kCases) {
    EXPECT_EQ(declaredEncoding(test.text), test.encoding) << testing::PrintToString(test.text);
  }
}

TEST(DeclaredEncoding, IsFoundInBytesWithZerosInBetween) {
  EXPECT_EQ(declaredEncodingOfBytes("<?xml encoding='gb2312'?>"), u"gb2312");
  EXPECT_EQ(
      declaredEncodingOfBytes("<\0?\0x\0m\0l\0 \0e\0n\0c\0o\0d\0i\0n\0g\0=\0'\0a\0'\0?\0>\0"sv),
      u"a");
}

struct DetectionCase {
  const char* what;
  std::string_view bytes;
  Source source;
  platform::CodePage codePage;
  std::u16string_view name;
};

// A document has to be read in the encoding in which it will be written.
TEST(DeclaredEncoding, IsTheSameForBytesAndForText) {
  const std::string kRows[] = {
      "<?xml version='1.0' n='a>b' encoding='big5'?><a/>",
      "<?xml " + std::string(1100, ' ') + "encoding='gb2312'?><a/>",
      "\r\n <?xml version='1.0' encoding='gb2312'?><a/>",
      "<?xml encoding=' gb2312\t'?><a/>",
      "<?xml version='1.0'?><html><head><meta http-equiv='Content-Type' "
      "content='text/html; charset=gb2312'></head></html>",
      "<html><head><!--" + std::string(70000, ' ') +
          "--><meta http-equiv='Content-Type' "
          "content='text/html; charset=big5'></head></html>",
      "<a encoding='gb2312'/>",
      "",
  };
  for (const std::string& row : kRows) {
    const std::u16string text(row.begin(), row.end());
    EXPECT_EQ(declaredEncodingOfBytes(row), declaredEncoding(text)) << row.substr(0, 80);
  }
  EXPECT_EQ(declaredEncodingOfBytes(kRows[0]), u"big5");
  EXPECT_EQ(declaredEncodingOfBytes(kRows[1]), u"gb2312");
  EXPECT_EQ(declaredEncodingOfBytes(kRows[2]), u"gb2312");
  EXPECT_EQ(declaredEncodingOfBytes(kRows[3]), u"gb2312");
  EXPECT_EQ(declaredEncodingOfBytes(kRows[4]), u"gb2312");
}

void expectDetected(std::span<const DetectionCase> cases) {
  for (const DetectionCase& test : cases) {
    SCOPED_TRACE(test.what);
    const DetectedEncoding encoding = detectEncoding(test.bytes, declaredEncodingOfBytes);
    EXPECT_EQ(encoding.source, test.source);
    EXPECT_EQ(encoding.codePage, test.codePage);
    EXPECT_EQ(encoding.name, test.name);
  }
}

TEST(EncodingDetection, WeighsMarksSignaturesBytesAndDeclarations) {
  const platform::CodePage ansi = platform::ansiCodePage();
  const DetectionCase kCases[] = {
      {"UTF-8 mark", "\xEF\xBB\xBF<a/>", Source::Mark, 65001, u"UTF-8"},
      {"UTF-16 mark", "\xFF\xFE<\0"sv, Source::Mark, 1200, u"UTF-16LE"},
      {"UTF-16 mark, high byte first", "\xFE\xFF\0<"sv, Source::Mark, 1201, u"UTF-16BE"},
      {"UTF-32 mark", "\xFF\xFE\0\0<\0\0\0"sv, Source::Mark, 12000, u"UTF-32LE"},
      {"UTF-32 mark, high byte first", "\0\0\xFE\xFF\0\0\0<"sv, Source::Mark, 12001, u"UTF-32BE"},
      {"a mark wins over the declaration", "\xEF\xBB\xBF<?xml encoding='gb2312'?>\xD0",
       Source::Mark, 65001, u"UTF-8"},
      {"UTF-16 without a mark", "<\0?\0"sv, Source::Signature, 1200, u"UTF-16LE"},
      {"the same, high byte first", "\0<\0r"sv, Source::Signature, 1201, u"UTF-16BE"},
      {"the same, before the first capital", "<\0A\0"sv, Source::Signature, 1200, u"UTF-16LE"},
      {"the same, before the last capital", "\0<\0Z"sv, Source::Signature, 1201, u"UTF-16BE"},
      {"the same, before the first letter", "\0<\0a"sv, Source::Signature, 1201, u"UTF-16BE"},
      {"the same, before the last letter", "<\0z\0"sv, Source::Signature, 1200, u"UTF-16LE"},
      {"no such signature", "\0<ar"sv, Source::Utf8Detection, 65001, u"UTF-8"},
      {"no such signature, low byte first", "<\0ra"sv, Source::Utf8Detection, 65001, u"UTF-8"},
      {"no signature", "<\0 \0\xFF"sv, Source::Ansi, ansi, u"ANSI"},
      {"plain", "<a/>", Source::Utf8Detection, 65001, u"UTF-8"},
      {"UTF-8 without a declaration", "<a>\xE8\xB0\xA2</a>", Source::Utf8Detection, 65001,
       u"UTF-8"},
      {"cut off at the end", "<a>\xE8\xB0", Source::Utf8Detection, 65001, u"UTF-8"},
      {"neither UTF-8 nor declared", "<a>\xD0\xBB\xB9</a>", Source::Ansi, ansi, u"ANSI"},
      {"declared", "<?xml encoding='windows-1252'?><a>\xE9</a>", Source::Declaration, 1252,
       u"windows-1252"},
      {"UTF-8 against another declaration", "<?xml encoding='windows-1252'?><a>\xC3\xA9</a>",
       Source::Utf8Detection, 65001, u"UTF-8"},
      {"unknown", "<?xml encoding='bogus'?><a>\xB9\xFE</a>", Source::Declaration, ansi, u"bogus"},
      {"declared UTF-8 that is not", "<?xml encoding='utf-8'?><a>\xB9\xFE</a>", Source::Declaration,
       65001, u"utf-8"},
      {"declared UTF-16 that is not", "<?xml encoding='utf-16'?><a>\xB9\xFE</a>",
       Source::Declaration, ansi, u"utf-16"},
      {"double-byte, not UTF-8", "<?xml encoding='gb2312'?><a>\xB9\xFE</a>", Source::Declaration,
       936, u"gb2312"},
      {"double-byte, plain", "<?xml encoding='gb2312'?><a/>", Source::Declaration, 936, u"gb2312"},
  };
  expectDetected(kCases);
}

// Phrases that happen to be valid UTF-8, in sequences of two or three bytes.
TEST(EncodingDetection, KeepsWhatReadsAsUtf8ByAccident) {
  const platform::CodePage ansi = platform::ansiCodePage();
  const platform::CodePage gb18030 = convertibleCodePage(54936);  // some systems lack it
  const DetectionCase kCases[] = {
      {"accidental two-byte sequences", "<?xml encoding='gb2312'?><a>\xD0\xBB\xD0\xBB</a>",
       Source::Declaration, 936, u"gb2312"},
      {"accidental three-byte sequences in the standard rows",
       "<?xml encoding='gb2312'?><a>\xE8\xB0\xA2\xE8\xB0\xA2</a>", Source::Declaration, 936,
       u"gb2312"},
      {"accidental sequences at the edge of the standard rows",
       "<?xml encoding='gb2312'?><a>\xE8\xA1\xA1\xE8\xA1\xA1</a>", Source::Declaration, 936,
       u"gb2312"},
      {"UTF-8 that reads as rare pairs", "<?xml encoding='gb2312'?><a>\xE4\xBD\xA0\xE4\xBD\xA0</a>",
       Source::Utf8Detection, 65001, u"UTF-8"},
      {"UTF-8 that the code page cannot read",
       "<?xml encoding='gb2312'?><a>\xC3\xA9\xE8\xB0\xA2</a>", Source::Utf8Detection, 65001,
       u"UTF-8"},
      // Every system knows at least the form of GB18030. What has an unknown name was written in
      // the system's code page.
      {"accidental two-byte sequences in GB18030",
       "<?xml encoding='gb18030'?><a>\xD0\xBB\xD0\xBB</a>", Source::Declaration, gb18030,
       u"gb18030"},
      {"accidental three-byte sequences in GB18030",
       "<?xml encoding='GB18030'?><a>\xE8\xB0\xA2\xE8\xB0\xA2</a>", Source::Declaration, gb18030,
       u"GB18030"},
      {"GB18030, plain", "<?xml encoding='gb18030'?><a/>", Source::Declaration, gb18030,
       u"gb18030"},
      {"UTF-8 that reads as rare pairs of GB18030",
       "<?xml encoding='gb18030'?><a>\xE4\xBD\xA0\xE4\xBD\xA0</a>", Source::Utf8Detection, 65001,
       u"UTF-8"},
      {"UTF-8 of an odd number of bytes in GB18030",
       "<?xml encoding='gb18030'?><a>\xE8\xB0\xA2</a>", Source::Utf8Detection, 65001, u"UTF-8"},
      {"accidental sequences under an unknown name",
       "<?xml encoding='bogus'?><a>\xD0\xBB\xD0\xBB</a>", Source::Declaration, ansi, u"bogus"},
      {"UTF-8 under an unknown name", "<?xml encoding='bogus'?><a>\xE4\xBD\xA0\xE4\xBD\xA0</a>",
       Source::Utf8Detection, 65001, u"UTF-8"},
      {"accidental sequences without a declaration", "<a>\xD0\xBB\xD0\xBB</a>",
       Source::Utf8Detection, 65001, u"UTF-8"},
      {"short UTF-8 that the code page cannot read", "<?xml encoding='shift_jis'?><a>\xC2\x85</a>",
       Source::Utf8Detection, 65001, u"UTF-8"},
  };
  expectDetected(kCases);
}

}  // namespace
}  // namespace brennet
