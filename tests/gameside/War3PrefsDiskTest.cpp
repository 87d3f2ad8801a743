// The preference file as a file: when it is written, and when it is left alone.

#include <gtest/gtest.h>

#include "gameside/War3PrefsFile.h"
#include "tests/gameside/PrefsFolder.h"

namespace brennet {
namespace {

constexpr char kOffFile[] = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";
constexpr char kOnFile[] = "[Gameplay]\r\ncustomkeys=2\r\n\r\n";
constexpr char kNoKeySection[] =
    "[Commandbar Hotkeys 00]\r\nHeroOnly=0\r\nHotkey=0\r\nMetaKeyState=0\r\nQuickCast=0\r\n\r\n";

TEST(PrefsOnDisk, AreChangedInPlace) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  War3PrefsFile file(folder.file());
  file.setCustomKeys(true);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(folder.content(), kOnFile);
  EXPECT_EQ(folder.entryCount(), 1);
}

TEST(PrefsOnDisk, AreCreatedFromTheHotkeySectionsAlone) {
  const PrefsFolder folder;
  War3PrefsFile file(folder.file());
  file.setCustomKeys(true);
  file.addHotkeySection({});
  EXPECT_TRUE(file.save());
  EXPECT_EQ(folder.content(), kNoKeySection);
}

TEST(PrefsOnDisk, GetHotkeySectionsWhenTheyWereEmpty) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(""));
  War3PrefsFile file(folder.file());
  file.addHotkeySection({});
  EXPECT_TRUE(file.save());
  EXPECT_EQ(folder.content(), kNoKeySection);
}

TEST(PrefsOnDisk, AreNotTouchedByReading) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write("loose=1\r\n[Inventory Hotkeys 0]\r\nHotkey=65\r\n"));
  War3PrefsFile file(folder.file());
  file.addHotkeySection({});
  EXPECT_EQ(folder.content(), "loose=1\r\n[Inventory Hotkeys 0]\r\nHotkey=65\r\n");
}

TEST(PrefsOnDisk, AreLeftAloneWhereNothingChanges) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
  std::filesystem::last_write_time(folder.file(), old);
  const auto before = std::filesystem::last_write_time(folder.file());

  War3PrefsFile file(folder.file());
  file.setCustomKeys(false);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(std::filesystem::last_write_time(folder.file()), before);
}

TEST(PrefsOnDisk, FollowAChangeAndItsWithdrawal) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  War3PrefsFile file(folder.file());
  file.setCustomKeys(true);
  EXPECT_TRUE(file.save());
  file.setCustomKeys(false);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(folder.content(), kOffFile);
}

TEST(PrefsOnDisk, StayTheSameHoweverOftenTheyAreWritten) {
  const PrefsFolder folder;
  // No last newline: the zeros of the first reading must not grow with each round.
  ASSERT_TRUE(folder.write("[A]\r\nx=1\r\n[Gameplay]\r\ncustomkeys=0\r\nlast=1"));
  std::string afterFirst;
  for (int round = 0; round < 4; ++round) {
    War3PrefsFile file(folder.file());
    file.setCustomKeys(true);
    file.addHotkeySection({});
    EXPECT_TRUE(file.save());
    if (round == 0) afterFirst = folder.content();
    EXPECT_EQ(folder.content(), afterFirst) << "round " << round;
  }
}

TEST(PrefsOnDisk, FailQuietlyWhereAFolderStandsInTheirPlace) {
  const PrefsFolder folder;
  std::filesystem::create_directory(folder.file());
  War3PrefsFile file(folder.file());
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());
  EXPECT_TRUE(std::filesystem::is_directory(folder.file()));
  EXPECT_EQ(folder.entryCount(), 1);
}

TEST(PrefsOnDisk, FailQuietlyWhereTheirFolderIsMissing) {
  const PrefsFolder folder;
  War3PrefsFile file(folder.path() / "Warcraft III" / "War3Preferences.txt");
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());
  EXPECT_EQ(folder.entryCount(), 0);
}

TEST(PrefsOnDisk, AreWrittenNowhereWithoutAPath) {
  War3PrefsFile file{platform::Path()};
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());

  War3PrefsFile parsed = War3PrefsFile::parse(kOffFile);
  parsed.setCustomKeys(true);
  EXPECT_FALSE(parsed.save());
}

}  // namespace
}  // namespace brennet
