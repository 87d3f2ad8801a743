// The preference file on disk: when it is written, and when it is left alone.

#include <gtest/gtest.h>

#include "gameside/prefs/War3PrefsFile.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

using test::readBytes;
using test::ScopedProfile;
using test::TempFolder;
using test::writeBytes;

constexpr char kName[] = "War3Preferences.txt";
constexpr char kOffFile[] = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";
constexpr char kOnFile[] = "[Gameplay]\r\ncustomkeys=2\r\n\r\n";
constexpr char kNoKeySection[] =
    "[Commandbar Hotkeys 00]\r\nHeroOnly=0\r\nHotkey=0\r\nMetaKeyState=0\r\nQuickCast=0\r\n\r\n";

TEST(War3PrefsDisk, AreChangedInPlace) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  War3PrefsFile file(folder / kName);
  file.setCustomKeys(true);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(readBytes(folder / kName), kOnFile);
  EXPECT_EQ(folder.listing(), "War3Preferences.txt\n");
}

TEST(War3PrefsDisk, AreCreatedFromTheHotkeySectionsAlone) {
  const TempFolder folder;
  War3PrefsFile file(folder / kName);
  file.setCustomKeys(true);
  file.addHotkeySection({});
  EXPECT_TRUE(file.save());
  EXPECT_EQ(readBytes(folder / kName), kNoKeySection);
}

TEST(War3PrefsDisk, GetHotkeySectionsWhenTheyWereEmpty) {
  const TempFolder folder;
  writeBytes(folder / kName, "");
  War3PrefsFile file(folder / kName);
  file.addHotkeySection({});
  EXPECT_TRUE(file.save());
  EXPECT_EQ(readBytes(folder / kName), kNoKeySection);
}

TEST(War3PrefsDisk, AreNotTouchedByReading) {
  const TempFolder folder;
  writeBytes(folder / kName, "loose=1\r\n[Inventory Hotkeys 0]\r\nHotkey=65\r\n");
  War3PrefsFile file(folder / kName);
  file.addHotkeySection({});
  EXPECT_EQ(readBytes(folder / kName), "loose=1\r\n[Inventory Hotkeys 0]\r\nHotkey=65\r\n");
}

TEST(War3PrefsDisk, AreLeftAloneWhereNothingChanges) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(48);
  std::filesystem::last_write_time(folder / kName, old);
  const auto before = std::filesystem::last_write_time(folder / kName);

  War3PrefsFile file(folder / kName);
  file.setCustomKeys(false);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(std::filesystem::last_write_time(folder / kName), before);
}

TEST(War3PrefsDisk, AreTidiedUpWhereNothingChangesToo) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  writeBytes(folder / (std::string(kName) + ".brennet-4294967290-0.tmp"), "half");
  War3PrefsFile file(folder / kName);
  file.setCustomKeys(false);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(folder.listing(), std::string(kName) + "\n");
}

TEST(War3PrefsDisk, FollowAChangeAndItsWithdrawal) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  War3PrefsFile file(folder / kName);
  file.setCustomKeys(true);
  EXPECT_TRUE(file.save());
  file.setCustomKeys(false);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(readBytes(folder / kName), kOffFile);
}

TEST(War3PrefsDisk, StayTheSameHoweverOftenTheyAreWritten) {
  const TempFolder folder;
  // No last newline: the zeros of the first reading must not grow with each round.
  writeBytes(folder / kName, "[A]\r\nx=1\r\n[Gameplay]\r\ncustomkeys=0\r\nlast=1");
  std::string afterFirst;
  for (int round = 0; round < 4; ++round) {
    War3PrefsFile file(folder / kName);
    file.setCustomKeys(true);
    file.addHotkeySection({});
    EXPECT_TRUE(file.save());
    if (round == 0) afterFirst = readBytes(folder / kName);
    EXPECT_EQ(readBytes(folder / kName), afterFirst) << "round " << round;
  }
}

TEST(War3PrefsDisk, AreLeftAloneWhereTheyAreTooLarge) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  constexpr std::uint64_t kTooLarge = 268'435'457;  // bytes: one more than 256 MiB
  std::filesystem::resize_file(folder / kName, kTooLarge);
  War3PrefsFile file(folder / kName);
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());
  EXPECT_EQ(std::filesystem::file_size(folder / kName), kTooLarge);
}

TEST(War3PrefsDisk, FailQuietlyWhereAFolderStandsInTheirPlace) {
  const TempFolder folder;
  std::filesystem::create_directory(folder / kName);
  War3PrefsFile file(folder / kName);
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());
  EXPECT_TRUE(std::filesystem::is_directory(folder / kName));
  EXPECT_EQ(folder.listing(), "War3Preferences.txt\n");
}

TEST(War3PrefsDisk, FailQuietlyWhereTheirFolderIsMissing) {
  const TempFolder folder;
  War3PrefsFile file(folder.path() / "Warcraft III" / "War3Preferences.txt");
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());
  EXPECT_EQ(folder.listing(), "");
}

TEST(War3PrefsDisk, AreWrittenNowhereWithoutAPath) {
  War3PrefsFile file{platform::Path()};
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());

  War3PrefsFile parsed = War3PrefsFile::parse(kOffFile);
  parsed.setCustomKeys(true);
  EXPECT_FALSE(parsed.save());
}

TEST(War3PrefsDiskPath, LiesBelowTheProfileFolder) {
  for (const char8_t* const user : {u8"Player One", u8"\u5F20\u4E09"}) {
    const TempFolder folder;
    const std::filesystem::path home = folder.path() / user;
    const std::filesystem::path game = home / "Documents" / "Warcraft III";
    std::filesystem::create_directories(game);
    writeBytes(game / kName, kOffFile);

    const ScopedProfile profile(home);
    War3PrefsFile file;
    file.setCustomKeys(true);
    EXPECT_TRUE(file.save());
    EXPECT_EQ(readBytes(game / kName), kOnFile);
  }
}

TEST(War3PrefsDiskPath, IsNoneWithoutAProfileFolder) {
  const ScopedProfile profile{std::filesystem::path()};
  War3PrefsFile file;
  file.addHotkeySection({});
  EXPECT_FALSE(file.save());
}

}  // namespace
}  // namespace brennet
