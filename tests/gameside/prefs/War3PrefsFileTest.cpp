// The format of the preference file, bytes in and bytes out, without a file.

#include "gameside/prefs/War3PrefsFile.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace brennet {
namespace {

using namespace std::string_literals;

War3HotkeySection commandKey(std::int32_t row, std::int32_t column, std::int32_t hotkey) {
  War3HotkeySection section;
  section.first = row;
  section.second = column;
  section.hotkey = hotkey;
  return section;
}

struct BytesCase {
  std::string when;
  std::string in;
  std::string out;
};

class War3PrefsFileReadAndWritten : public testing::TestWithParam<BytesCase> {};

TEST_P(War3PrefsFileReadAndWritten, GivesTheseBytes) {
  const BytesCase& row = GetParam();
  EXPECT_EQ(War3PrefsFile::parse(row.in).serialize(), row.out);
}

std::string caseName(const testing::TestParamInfo<BytesCase>& test) {
  return test.param.when;
}

INSTANTIATE_TEST_SUITE_P(
    LineEnds, War3PrefsFileReadAndWritten,
    testing::Values(BytesCase{"CrLf", "[A]\r\nx=1\r\ny=2\r\n\r\n", "[A]\r\nx=1\r\ny=2\r\n\r\n"},
                    BytesCase{"Lf", "[A]\nx=1\ny=2\n\n", "[A]\r\nx=1\r\ny=2\r\n\r\n"},
                    BytesCase{"Mixed", "[A]\r\nx=1\ny=2\r\n\n", "[A]\r\nx=1\r\ny=2\r\n\r\n"},
                    BytesCase{"CrNotBeforeLfIsText", "[A]\r\nx=\r1\r\n", "[A]\r\nx=\r1\r\n\r\n"},
                    BytesCase{"OneCrOfTwoBelongsToTheValue", "[A]\r\nx=1\r\r\n",
                              "[A]\r\nx=1\r\r\n\r\n"},
                    BytesCase{"CrAlone", "[A]\rx=1\r", "[A]\rx=1\r\r\n\r\n"},
                    BytesCase{"NoBlankLineBetweenSections", "[A]\nx=1\n[B]\ny=2\n",
                              "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n\r\n"}),
    caseName);

// The text is exactly as long as the file: each CR that is removed leaves a zero at the end.
INSTANTIATE_TEST_SUITE_P(
    EndOfFile, War3PrefsFileReadAndWritten,
    testing::Values(
        BytesCase{"NoLastNewlineWithLf", "[A]\nx=1", "[A]\r\nx=1\r\n\r\n"},
        BytesCase{"NoLastNewlineWithCrLf", "[A]\r\nx=1", "[A]\r\nx=1\0\r\n\r\n"s},
        BytesCase{"NoLastNewlineAndThreeCrLf", "[A]\r\nx=1\r\ny=2\r\nz=3",
                  "[A]\r\nx=1\r\ny=2\r\nz=3\0\0\0\r\n\r\n"s},
        BytesCase{"HeaderWithoutNewline", "[A]\r\nx=1\r\n[B]",
                  "[A]\r\nx=1\r\n\r\n[B]\0\0\r\n\r\n"s},
        BytesCase{"EmptyValueWithoutNewline", "[A]\nx=", "[A]\r\nx=\r\n\r\n"},
        BytesCase{"ZerosBehindTheLastNewlineAreNoPair", "[A]\r\nx=1\r\n", "[A]\r\nx=1\r\n\r\n"},
        BytesCase{"EndMarkHidesTheRest", "[A]\nx=1\n\x1A[B]\ny=2\n", "[A]\r\nx=1\r\n\r\n"},
        BytesCase{"EndMarkInsideALine", "[A]\nx=1\x1A\x32\n", "[A]\r\nx=1\0\0\0\r\n\r\n"s},
        BytesCase{"CrBeforeTheEndMarkIsText", "[A]\nx=1\r\x1A\n", "[A]\r\nx=1\r\0\0\r\n\r\n"s},
        BytesCase{"EndMarkFirst", "\x1A[A]\nx=1\n", ""}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    Lines, War3PrefsFileReadAndWritten,
    testing::Values(
        BytesCase{"Empty", "", ""}, BytesCase{"OnlyNewlines", "\r\n\r\n\n", ""},
        BytesCase{"OnlyZeros", std::string(100, '\0'), ""},
        BytesCase{"PairsBeforeAnyHeader", "a=1\nb=2\n[A]\nx=1\n", "[A]\r\nx=1\r\n\r\n"},
        BytesCase{"OnlyPairs", "a=1\r\nb=2\r\n", ""},
        BytesCase{"LinesWithoutEquals", "[A]\n; note\nx=1\n\nword\ny=2\n",
                  "[A]\r\nx=1\r\ny=2\r\n\r\n"},
        BytesCase{"ACommentWithEqualsIsAPair", "[A]\n;x=1\n", "[A]\r\n;x=1\r\n\r\n"},
        BytesCase{"EmptyValue", "[A]\nx=\n", "[A]\r\nx=\r\n\r\n"},
        BytesCase{"EmptyKey", "[A]\n=1\n=\n", "[A]\r\n=1\r\n=\r\n\r\n"},
        BytesCase{"SecondEqualsBelongsToTheValue", "[A]\nx=1=2==\n", "[A]\r\nx=1=2==\r\n\r\n"},
        BytesCase{"BlanksStay", "[A]\n x = 1 \n", "[A]\r\n x = 1 \r\n\r\n"},
        BytesCase{"AnIndentedHeaderIsNone", "[A]\n [B]\n x=1\n", "[A]\r\n x=1\r\n\r\n"},
        BytesCase{"HeaderWithTextBehindIt", "[A] x=1\ny=2\n", "[A] x=1\r\ny=2\r\n\r\n"},
        BytesCase{"HeaderWithoutClosingBracket", "[A\nx=1\n", "[A\r\nx=1\r\n\r\n"},
        BytesCase{"BracketAlone", "[\nx=1\n", "[\r\nx=1\r\n\r\n"},
        BytesCase{"SectionWithoutPairs", "[A]\n[B]\n", "[A]\r\n\r\n[B]\r\n\r\n"},
        BytesCase{"SectionsOfTheSameName", "[A]\nx=1\n[A]\nx=2\n",
                  "[A]\r\nx=1\r\n\r\n[A]\r\nx=2\r\n\r\n"},
        BytesCase{"KeysOfTheSameName", "[A]\nx=1\nx=2\n", "[A]\r\nx=1\r\nx=2\r\n\r\n"},
        BytesCase{"ZeroBytesInside", "[A\0]\nx\0=1\0\n\0\n"s, "[A\0]\r\nx\0=1\0\r\n\r\n"s},
        BytesCase{"BytesAbove127", "[\xC9\xE8]\n\xD6\xC3=\xFF\xFE\n",
                  "[\xC9\xE8]\r\n\xD6\xC3=\xFF\xFE\r\n\r\n"}),
    caseName);

INSTANTIATE_TEST_SUITE_P(
    HotkeySections, War3PrefsFileReadAndWritten,
    testing::Values(
        BytesCase{"Before", "[Commandbar Hotkeys 00]\nHotkey=65\n\n[A]\nx=1\n",
                  "[A]\r\nx=1\r\n\r\n"},
        BytesCase{"After", "[A]\nx=1\n\n[Inventory Hotkeys 3]\nHotkey=65\n", "[A]\r\nx=1\r\n\r\n"},
        BytesCase{"Between",
                  "[A]\nx=1\n[Inventory Hotkeys 3]\nHotkey=1\n[Commandbar Hotkeys 23]\nHotkey=2\n"
                  "[B]\ny=2\n",
                  "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n\r\n"},
        BytesCase{"AnyNumber", "[Commandbar Hotkeys 99]\na=1\n[Inventory Hotkeys ]\nb=1\n", ""},
        BytesCase{"WordsInsideTheHeader", "[Old [Commandbar Hotkeys 00]]\nx=1\n[A]\n",
                  "[A]\r\n\r\n"},
        BytesCase{"WithoutTheBlankTheyAreOthers", "[Commandbar Hotkeys]\nx=1\n",
                  "[Commandbar Hotkeys]\r\nx=1\r\n\r\n"},
        BytesCase{"InOtherCaseTheyAreOthers", "[inventory hotkeys 3]\nx=1\n",
                  "[inventory hotkeys 3]\r\nx=1\r\n\r\n"},
        BytesCase{"WithoutTheBracketTheyAreOthers", "[My Inventory Hotkeys 3]\nx=1\n",
                  "[My Inventory Hotkeys 3]\r\nx=1\r\n\r\n"},
        BytesCase{"AnEndMarkDoesNotSaveOne", "[Inventory Hotkeys 3]\x1A\n[A]\n", ""}),
    caseName);

class War3PrefsFileCustomKeysSetOn : public testing::TestWithParam<BytesCase> {};

TEST_P(War3PrefsFileCustomKeysSetOn, ChangeOneValueAtMost) {
  const BytesCase& row = GetParam();
  War3PrefsFile file = War3PrefsFile::parse(row.in);
  file.setCustomKeys(true);
  EXPECT_EQ(file.serialize(), row.out);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, War3PrefsFileCustomKeysSetOn,
    testing::Values(
        BytesCase{"WereOff", "[Gameplay]\ncustomkeys=0\n", "[Gameplay]\r\ncustomkeys=2\r\n\r\n"},
        BytesCase{"HadNoValue", "[Gameplay]\ncustomkeys=\n", "[Gameplay]\r\ncustomkeys=2\r\n\r\n"},
        BytesCase{"HadALongValue", "[Gameplay]\na=1\ncustomkeys=a=b=c\nb=2\n",
                  "[Gameplay]\r\na=1\r\ncustomkeys=2\r\nb=2\r\n\r\n"},
        BytesCase{"WereMissing", "[Gameplay]\na=1\n", "[Gameplay]\r\na=1\r\n\r\n"},
        BytesCase{"HadNoEqualsSign", "[Gameplay]\ncustomkeys\n", "[Gameplay]\r\n\r\n"},
        BytesCase{"HadNoGameplay", "[Sound]\ncustomkeys=0\n", "[Sound]\r\ncustomkeys=0\r\n\r\n"},
        BytesCase{"StoodTwice", "[Gameplay]\ncustomkeys=0\ncustomkeys=0\n",
                  "[Gameplay]\r\ncustomkeys=2\r\ncustomkeys=0\r\n\r\n"},
        BytesCase{"GameplayStoodTwice", "[Gameplay]\ncustomkeys=0\n[Gameplay]\ncustomkeys=0\n",
                  "[Gameplay]\r\ncustomkeys=2\r\n\r\n[Gameplay]\r\ncustomkeys=0\r\n\r\n"},
        BytesCase{"OnlyTheSecondGameplayHasThem", "[Gameplay]\nx=1\n[Gameplay]\ncustomkeys=0\n",
                  "[Gameplay]\r\nx=1\r\n\r\n[Gameplay]\r\ncustomkeys=0\r\n\r\n"},
        BytesCase{"OnlyTheNextSectionHasThem", "[Gameplay]\n[Sound]\ncustomkeys=0\n",
                  "[Gameplay]\r\n\r\n[Sound]\r\ncustomkeys=0\r\n\r\n"},
        BytesCase{"InOtherCase", "[Gameplay]\nCustomKeys=0\n[gameplay]\ncustomkeys=0\n",
                  "[Gameplay]\r\nCustomKeys=0\r\n\r\n[gameplay]\r\ncustomkeys=0\r\n\r\n"},
        BytesCase{"BlankInTheKey", "[Gameplay]\ncustomkeys =0\n",
                  "[Gameplay]\r\ncustomkeys =0\r\n\r\n"},
        BytesCase{"CrInTheHeader", "[Gameplay]\r\r\ncustomkeys=0\r\n",
                  "[Gameplay]\r\r\ncustomkeys=0\r\n\r\n"},
        BytesCase{"ZerosBehindTheValueGo", "[Gameplay]\r\ncustomkeys=0",
                  "[Gameplay]\r\ncustomkeys=2\r\n\r\n"}),
    caseName);

TEST(War3PrefsFileCustomKeys, AreZeroWhenOff) {
  War3PrefsFile file = War3PrefsFile::parse("[Gameplay]\ncustomkeys=2\n");
  file.setCustomKeys(false);
  EXPECT_EQ(file.serialize(), "[Gameplay]\r\ncustomkeys=0\r\n\r\n");
}

TEST(War3PrefsFileSetValue, TakesAnyTextWithoutALineEnd) {
  War3PrefsFile file = War3PrefsFile::parse("[A]\nx=1\ny=2\n[]\nz=3\n");
  file.setValue("x", "A", "");
  file.setValue("y", "A", std::string(300, '='));
  file.setValue("z", "", "[A]");
  EXPECT_EQ(file.serialize(),
            "[A]\r\nx=\r\ny=" + std::string(300, '=') + "\r\n\r\n[]\r\nz=[A]\r\n\r\n");
}

TEST(War3PrefsFileSetValue, FindsAnEmptyKeyAndNoKeyWithAnEqualsSign) {
  War3PrefsFile file = War3PrefsFile::parse("[A]\n=1\nx=1\n");
  file.setValue("", "A", "2");
  file.setValue("x=1", "A", "2");
  file.setValue("x=", "A", "2");
  EXPECT_EQ(file.serialize(), "[A]\r\n=2\r\nx=1\r\n\r\n");
}

TEST(War3PrefsFileSetValue, DoesNotTakeAPairForAHeader) {
  War3PrefsFile file = War3PrefsFile::parse("[A]\n =[B]\nx=1\n");
  file.setValue("x", "B", "2");
  EXPECT_EQ(file.serialize(), "[A]\r\n =[B]\r\nx=1\r\n\r\n");
}

TEST(War3PrefsFileAddHotkeySection, KeepsTheOrderOfAdding) {
  War3PrefsFile file = War3PrefsFile::parse("[A]\nx=1\n");
  file.addHotkeySection(commandKey(2, 0, 81));
  file.addHotkeySection(commandKey(0, 1, 87));
  EXPECT_EQ(
      file.serialize(),
      "[Commandbar Hotkeys 20]\r\nHeroOnly=0\r\nHotkey=81\r\nMetaKeyState=0\r\nQuickCast=0\r\n\r\n"
      "[Commandbar Hotkeys 01]\r\nHeroOnly=0\r\nHotkey=87\r\nMetaKeyState=0\r\nQuickCast=0\r\n\r\n"
      "[A]\r\nx=1\r\n\r\n");
}

TEST(War3PrefsFileAddHotkeySection, OverwritesTheSectionOfTheSameNameInItsPlace) {
  War3PrefsFile file = War3PrefsFile::parse("");
  file.addHotkeySection(commandKey(2, 0, 81));
  file.addHotkeySection(commandKey(0, 1, 87));
  file.addHotkeySection(commandKey(2, 0, 69));

  War3PrefsFile expected = War3PrefsFile::parse("");
  expected.addHotkeySection(commandKey(2, 0, 69));
  expected.addHotkeySection(commandKey(0, 1, 87));
  EXPECT_EQ(file.serialize(), expected.serialize());
}

TEST(War3PrefsFileAddHotkeySection, ComparesNamesNotPositions) {
  War3HotkeySection slot;
  slot.kind = War3HotkeySection::kInventory;
  slot.first = 1;
  slot.hotkey = 81;
  War3HotkeySection sameSlot = slot;
  sameSlot.first = 0;
  sameSlot.second = 2;
  sameSlot.hotkey = 87;

  War3PrefsFile file = War3PrefsFile::parse("");
  file.addHotkeySection(slot);
  file.addHotkeySection(sameSlot);
  EXPECT_EQ(
      file.serialize(),
      "[Inventory Hotkeys 2]\r\nHeroOnly=0\r\nHotkey=87\r\nMetaKeyState=0\r\nQuickCast=0\r\n\r\n");
}

TEST(War3PrefsFileAddHotkeySection, TakesUnknownKindsForOneAndTheSame) {
  War3HotkeySection unknown;
  unknown.kind = 7;
  War3PrefsFile file = War3PrefsFile::parse("");
  file.addHotkeySection(unknown);
  unknown.kind = 8;
  unknown.hotkey = 65;
  file.addHotkeySection(unknown);
  EXPECT_EQ(file.serialize(),
            "[]\r\nHeroOnly=0\r\nHotkey=65\r\nMetaKeyState=0\r\nQuickCast=0\r\n\r\n");
}

TEST(War3PrefsFileParseLine, HandsASectionOverWhenTheNextOneBegins) {
  War3PrefsFile file = War3PrefsFile::parse("");
  War3PrefsFile::PlainSection section;
  file.parseLine("lost=1", section);
  file.parseLine("[A]", section);
  file.parseLine("x=1", section);
  EXPECT_EQ(section.header, "[A]");
  EXPECT_EQ(section.pairs, "x=1\n");
  EXPECT_EQ(file.serialize(), "");

  file.parseLine("[B]", section);
  EXPECT_EQ(section.header, "[B]");
  EXPECT_EQ(section.pairs, "");
  EXPECT_EQ(file.serialize(), "[A]\r\nx=1\r\n\r\n");
}

// 32 MB in shapes that would hurt a reader that copies or searches more than it has to.
class War3PrefsFileBigFile : public testing::TestWithParam<std::string_view> {};

TEST_P(War3PrefsFileBigFile, LosesNothing) {
  constexpr std::size_t kSize = std::size_t{32} << 20U;
  std::string in = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";
  while (in.size() + GetParam().size() <= kSize) in += GetParam();

  War3PrefsFile file = War3PrefsFile::parse(in);
  file.setCustomKeys(true);
  in[in.find('0')] = '2';
  EXPECT_TRUE(file.serialize() == in) << "differs";
}

INSTANTIATE_TEST_SUITE_P(Shapes, War3PrefsFileBigFile,
                         testing::Values("[S]\r\n\r\n", "[Gameplay]\r\ncustomkeys=1\r\n\r\n",
                                         "[Long]\r\nkey=value that goes on for a while\r\n\r\n"));

TEST(War3PrefsFileBigFile, MayBeOneLine) {
  const std::string value(std::size_t{32} << 20U, '=');
  War3PrefsFile file = War3PrefsFile::parse("[Gameplay]\ncustomkeys" + value);
  EXPECT_EQ(file.serialize().size(), value.size() + 26);
  file.setCustomKeys(true);
  EXPECT_EQ(file.serialize(), "[Gameplay]\r\ncustomkeys=2\r\n\r\n");
}

}  // namespace
}  // namespace brennet
