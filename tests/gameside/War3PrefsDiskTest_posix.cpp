// Where the preference file lies, and what permissions do to it, on systems with a home folder and
// user ids.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "gameside/War3PrefsFile.h"
#include "tests/gameside/PrefsFolder.h"

namespace brennet {
namespace {

constexpr char kOffFile[] = "[Gameplay]\r\ncustomkeys=0\r\n\r\n";
constexpr char kOnFile[] = "[Gameplay]\r\ncustomkeys=2\r\n\r\n";

// Permissions do not bind the superuser: gives them up until the object goes.
class OrdinaryUser {
 public:
  OrdinaryUser() : privileged_(geteuid() == 0) {
    if (privileged_ && seteuid(kNobody) != 0) std::abort();
  }
  ~OrdinaryUser() {
    if (privileged_ && seteuid(0) != 0) std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  bool privileged_;
};

// Makes another folder the user's home until the object goes. No path: no home.
class Home {
 public:
  explicit Home(const char* path) {
    if (const char* home = std::getenv("HOME")) old_ = home;
    if (path != nullptr) {
      setenv("HOME", path, 1);
    } else {
      unsetenv("HOME");
    }
  }
  ~Home() { setenv("HOME", old_.c_str(), 1); }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;

 private:
  std::string old_;
};

bool trySwitchOn(const PrefsFolder& folder) {
  const OrdinaryUser user;
  War3PrefsFile file(folder.file());
  file.setCustomKeys(true);
  return file.save();
}

TEST(PrefsPermissions, ProtectAReadOnlyFileInAWritableFolder) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(folder.file().c_str(), 0444), 0);
  EXPECT_FALSE(trySwitchOn(folder));
  EXPECT_EQ(folder.content(), kOffFile);
  EXPECT_EQ(folder.entryCount(), 1);
}

TEST(PrefsPermissions, ProtectAReadOnlyFileInAReadOnlyFolder) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  ASSERT_EQ(chmod(folder.file().c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  EXPECT_FALSE(trySwitchOn(folder));
  EXPECT_EQ(folder.content(), kOffFile);
}

TEST(PrefsPermissions, LetAWritableFileChangeInAReadOnlyFolder) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  ASSERT_EQ(chmod(folder.file().c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  EXPECT_TRUE(trySwitchOn(folder));
  EXPECT_EQ(folder.content(), kOnFile);
}

TEST(PrefsPermissions, ProtectAFileThatMayNotBeOpenedAtAll) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(folder.file().c_str(), 0000), 0);
  EXPECT_FALSE(trySwitchOn(folder));
  ASSERT_EQ(chmod(folder.file().c_str(), 0600), 0);
  EXPECT_EQ(folder.content(), kOffFile);
}

TEST(PrefsPermissions, MakeAFileThatMayOnlyBeWrittenAnEmptyOne) {
  const PrefsFolder folder;
  ASSERT_TRUE(folder.write(kOffFile));
  ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(folder.file().c_str(), 0222), 0);
  EXPECT_TRUE(trySwitchOn(folder));
  ASSERT_EQ(chmod(folder.file().c_str(), 0600), 0);
  EXPECT_EQ(folder.content(), "");
}

TEST(PrefsPath, LiesBelowTheProfileFolder) {
  const PrefsFolder home;
  const std::filesystem::path game = home.path() / "Documents" / "Warcraft III";
  std::filesystem::create_directories(game);
  ASSERT_FALSE(platform::replaceFile(game / "War3Preferences.txt", kOffFile));

  const Home environment(home.path().c_str());
  War3PrefsFile file;
  file.setCustomKeys(true);
  EXPECT_TRUE(file.save());

  std::string bytes;
  ASSERT_FALSE(platform::readFile(game / "War3Preferences.txt", bytes));
  EXPECT_EQ(bytes, kOnFile);
}

TEST(PrefsPath, IsNoneWithoutAProfileFolder) {
  const char* const homes[] = {nullptr, ""};
  for (const char* home : homes) {
    const Home environment(home);
    War3PrefsFile file;
    file.addHotkeySection({});
    EXPECT_FALSE(file.save());
  }
}

}  // namespace
}  // namespace brennet
