// Where the preference file is, and how permissions protect it, on systems with home folders and
// user ids.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "gameside/prefs/War3PrefsFile.h"
#include "tests/support/OrdinaryUser_posix.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

using test::OrdinaryUser;
using test::readBytes;
using test::TempFolder;
using test::writeBytes;

constexpr char kName[] = "War3Preferences.txt";
constexpr char kOffFile[] = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";
constexpr char kOnFile[] = "[Gameplay]\r\ncustomkeys=2\r\n\r\n";

// Switches custom keys on as an ordinary user, with these modes of the folder and the file.
// Afterwards both may be read and removed again.
bool trySwitchOn(const TempFolder& folder, mode_t folderMode, mode_t fileMode) {
  chmod((folder / kName).c_str(), fileMode);
  chmod(folder.path().c_str(), folderMode);
  bool saved = false;
  {
    const OrdinaryUser user;
    War3PrefsFile file(folder / kName);
    file.setCustomKeys(true);
    saved = file.save();
  }
  chmod(folder.path().c_str(), 0755);
  chmod((folder / kName).c_str(), 0644);
  return saved;
}

TEST(War3PrefsDiskPermissions, ProtectAReadOnlyFileInAWritableFolder) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  EXPECT_FALSE(trySwitchOn(folder, 0777, 0444));
  EXPECT_EQ(readBytes(folder / kName), kOffFile);
  EXPECT_EQ(folder.listing(), "War3Preferences.txt\n");
}

TEST(War3PrefsDiskPermissions, ProtectAReadOnlyFileInAReadOnlyFolder) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  EXPECT_FALSE(trySwitchOn(folder, 0555, 0444));
  EXPECT_EQ(readBytes(folder / kName), kOffFile);
  EXPECT_EQ(folder.listing(), "War3Preferences.txt\n");
}

TEST(War3PrefsDiskPermissions, LetAWritableFileChangeInAReadOnlyFolder) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  EXPECT_TRUE(trySwitchOn(folder, 0555, 0666));
  EXPECT_EQ(readBytes(folder / kName), kOnFile);
  EXPECT_EQ(folder.listing(), "War3Preferences.txt\n");
}

TEST(War3PrefsDiskPermissions, ProtectAFileThatMayNotBeOpenedAtAll) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  EXPECT_FALSE(trySwitchOn(folder, 0777, 0000));
  EXPECT_EQ(readBytes(folder / kName), kOffFile);
  EXPECT_EQ(folder.listing(), "War3Preferences.txt\n");
}

// Its content is not known, so nothing can replace it.
TEST(War3PrefsDiskPermissions, ProtectAFileThatMayOnlyBeWritten) {
  const TempFolder folder;
  writeBytes(folder / kName, kOffFile);
  EXPECT_FALSE(trySwitchOn(folder, 0777, 0222));
  EXPECT_EQ(readBytes(folder / kName), kOffFile);
  EXPECT_EQ(folder.listing(), "War3Preferences.txt\n");
}

}  // namespace
}  // namespace brennet
