// Documents and their files.
#include <gtest/gtest.h>

#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextEncoding.h"
#include "markup/text/TextFile.h"
#include "platform/CodePages.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

using namespace std::string_view_literals;
using test::readBytes;
using test::writeBytes;

class DocumentFiles : public testing::Test {
 protected:
  [[nodiscard]] std::u16string path() const { return (folder_ / "document.xml").u16string(); }
  void write(std::string_view bytes) const { writeBytes(folder_ / "document.xml", bytes); }
  [[nodiscard]] std::string read() const { return readBytes(folder_ / "document.xml"); }

  test::TempFolder folder_;
  MarkupDocument document_;
};

TEST_F(DocumentFiles, AnEmptyFileHasNoRootElement) {
  write("");
  EXPECT_FALSE(document_.load(path()));
  EXPECT_EQ(document_.result(), u"<read encoding=\"UTF-8\" length=\"0\"/><no_root_element/>");
}

TEST_F(DocumentFiles, ReportsFileResultsBeforeThoseOfTheParse) {
  write("<?xml encoding='gb2312'?><a><b>\xB9\xFE</a>");
  EXPECT_TRUE(document_.load(path()));
  EXPECT_EQ(document_.result(),
            u"<read encoding=\"gb2312\" length=\"37\"/>"
            u"<converted_to encoding=\"UTF-16\" length=\"36\"/>"
            u"<unended_start_tag tagname=\"b\" offset=\"28\" offset2=\"32\"/>");
}

TEST_F(DocumentFiles, AFileThatIsMissingLeavesTheDocument) {
  ASSERT_TRUE(document_.setDoc(u"<a/>"));
  EXPECT_FALSE(document_.load(path()));
  EXPECT_EQ(document_.result(), u"<file_error msg=\"No such file or directory\" n=\"2\"/>");
  EXPECT_EQ(document_.doc(), u"<a/>");
}

TEST_F(DocumentFiles, AFolderIsNoFile) {
  EXPECT_FALSE(document_.load(folder_.path().u16string()));
  ASSERT_TRUE(document_.setDoc(u"<a/>"));
  EXPECT_FALSE(document_.save(folder_.path().u16string()));
  EXPECT_NE(document_.result().find(u"<file_error"), std::u16string::npos);
}

TEST_F(DocumentFiles, AFileInAMissingFolderCannotBeWritten) {
  ASSERT_TRUE(document_.setDoc(u"<a/>"));
  EXPECT_FALSE(document_.save((folder_ / "missing/document.xml").u16string()));
  EXPECT_NE(document_.result().find(u"<file_error"), std::u16string::npos);
}

TEST_F(DocumentFiles, AreRefusedWhileOneIsOpen) {
  write("<a/>");
  for (const std::uint32_t mode : {MarkupDocument::kReading, MarkupDocument::kWriting}) {
    document_.setDocFlags(mode);
    EXPECT_FALSE(document_.load(path()));
    EXPECT_FALSE(document_.save(path()));
  }
  document_.setDocFlags(0);
  EXPECT_TRUE(document_.load(path()));
}

TEST_F(DocumentFiles, AreWrittenInTheDeclaredEncoding) {
  ASSERT_TRUE(document_.setDoc(u"<?xml encoding=\"gb2312\"?><a>\u8C22</a>"));
  EXPECT_TRUE(document_.save(path()));
  EXPECT_EQ(read(), "<?xml encoding=\"gb2312\"?><a>\xD0\xBB</a>");
  ASSERT_TRUE(document_.setDoc(u"<a>\u8C22</a>"));
  EXPECT_TRUE(document_.save(path()));
  EXPECT_EQ(read(), "<a>\xE8\xB0\xA2</a>") << "UTF-8 where none is declared";
  document_.setDoc(
      u"<html><head><meta http-equiv=\"Content-Type\" content=\"text/html; "
      u"charset=gb2312\"></head>\u8C22</html>");
  EXPECT_TRUE(document_.save(path()));
  EXPECT_NE(read().find("\xD0\xBB"), std::string::npos);
}

TEST_F(DocumentFiles, AnEmptyDocumentMakesAnEmptyFile) {
  write("old");
  EXPECT_TRUE(document_.save(path()));
  EXPECT_EQ(read(), "");
}

TEST_F(DocumentFiles, LoseCharactersThatTheEncodingLacksAndSaySo) {
  ASSERT_TRUE(document_.setDoc(u"<?xml encoding=\"gb2312\"?><a>\u0B85</a>"));
  EXPECT_TRUE(document_.save(path()));
  EXPECT_EQ(read(), "<?xml encoding=\"gb2312\"?><a>?</a>");
  EXPECT_EQ(document_.result(),
            u"<converted_from encoding=\"UTF-16\" length=\"33\"/><conversion_loss/>");
}

// The bytes D0 BB D0 BB are valid UTF-8 as well: two Cyrillic letters.
TEST_F(DocumentFiles, ReadBackTheirOwnPhrasesInGb2312) {
  ASSERT_TRUE(
      document_.setDoc(u"<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n<a>\u8C22\u8C22</a>"));
  ASSERT_TRUE(document_.save(path()));
  MarkupDocument again;
  ASSERT_TRUE(again.load(path()));
  ASSERT_TRUE(again.findElem());
  EXPECT_EQ(again.getData(), u"\u8C22\u8C22");
}

TEST_F(DocumentFiles, ThatAreNotEditedAreWrittenBackByteForByte) {
  const std::string_view kFiles[] = {
      "<a>\xE8\xB0\xA2</a>",
      "\xEF\xBB\xBF<a>\xE8\xB0\xA2</a>",
      "<?xml version='1.0' encoding='utf-8'?>\n<a x = '1' ><b></b><!-- c --></a >\n\n",
      "\xEF\xBB\xBF<?xml encoding='utf-8'?><a>\xE8\xB0\xA2</a>",
      "<?xml encoding='gb2312'?><a>\xD0\xBB\xB9\xFE</a>",
      "<?xml encoding='GBK'?><a>\x81\x40\xFD\x9B</a>",
      "<?xml encoding='big5'?><a>\xA4\xA4\xA4\xE5</a>",
      "<?xml encoding='shift_jis'?><a>\x83\x65\x83\x58\x83\x67\xB1</a>",
      "<?xml encoding='euc-kr'?><a>\xC7\xD1\xB1\xDB</a>",
      "<?xml encoding='windows-1252'?><a>\xE9\x80</a>",
      "<html><head><meta charset='windows-1251' http-equiv='Content-Type'>\xCF\xF0\xE8",
  };
  for (const std::string_view bytes : kFiles) {
    SCOPED_TRACE(testing::PrintToString(bytes));
    write(bytes);
    document_.load(path());
    EXPECT_TRUE(document_.save(path()));
    EXPECT_EQ(read(), bytes);
  }
}

// An encoding that the system cannot convert is read as the ANSI code page.
TEST_F(DocumentFiles, InGb18030AreWrittenBackWhereTheSystemKnowsIt) {
  const bool known = platform::codePageShape(54936) != platform::CodePageShape::Unsupported;
  const std::string bytes = "<?xml encoding='gb18030'?><a>\x81\x30\x81\x30\xB9\xFE</a>";
  write(bytes);
  document_.load(path());
  EXPECT_TRUE(document_.save(path()));
  EXPECT_EQ(read(), known ? bytes : "<?xml encoding='gb18030'?><a>??\xB9\xFE</a>");
}

TEST_F(DocumentFiles, InWideEncodingsAreWrittenBackByteForByte) {
  const std::u16string_view kNames[] = {u"utf-16", u"utf-16le", u"utf-16be", u"utf-32", u"UCS-2"};
  for (const std::u16string_view name : kNames) {
    for (const platform::CodePage codePage : {1200U, 1201U, 12000U, 12001U}) {
      for (const bool hasMark : {false, true}) {
        if (isUtf32(codePage) != name.starts_with(u"utf-32")) continue;
        SCOPED_TRACE(testing::Message() << codePage << (hasMark ? " with a mark" : " without"));
        std::u16string text = u"<?xml encoding='";
        text.append(name).append(u"'?><a>\u8C22\U0001F600</a>");
        ResultLog log;
        const std::string bytes = encodeText(text, name, log, {codePage, hasMark});
        // Without a mark, only the declaration tells UTF-32 from UTF-16, and it has just one order.
        if (codePage == 12001 && !hasMark) continue;
        write(bytes);
        EXPECT_TRUE(document_.load(path()));
        EXPECT_EQ(document_.doc(), text);
        EXPECT_TRUE(document_.save(path()));
        EXPECT_EQ(read(), bytes);
      }
    }
  }
}

TEST_F(DocumentFiles, ForgetTheOldFormWithANewText) {
  write("\xEF\xBB\xBF<a/>");
  ASSERT_TRUE(document_.load(path()));
  ASSERT_TRUE(document_.setDoc(u"<b/>"));
  ASSERT_TRUE(document_.save(path()));
  EXPECT_EQ(read(), "<b/>");
}

TEST_F(DocumentFiles, OfALongTextAreReadInBlocks) {
  std::u16string text = u"<?xml encoding=\"gb2312\"?><a>";
  for (int i = 0; i < 200'000; ++i) text += i % 7 == 0 ? u"abc" : u"\u54C8";
  text += u"</a>";
  ASSERT_TRUE(document_.setDoc(text));
  ASSERT_TRUE(document_.save(path()));
  MarkupDocument again;
  ASSERT_TRUE(again.load(path(), 4097));
  EXPECT_EQ(again.doc(), text);
}

TEST_F(DocumentFiles, ReadTextFileKeepsItsArgumentsWhenItFails) {
  std::u16string text = u"kept";
  TextForm form{1200, true};
  ResultLog log;
  EXPECT_FALSE(readTextFile(path(), declaredEncodingOfBytes, text, log, kReadBlockSize, &form));
  EXPECT_EQ(text, u"kept");
  EXPECT_EQ(form.codePage, 1200U);
}

}  // namespace
}  // namespace brennet
