// What the calls of the operating system promise to the functions above them.

#include "platform/FileSystem.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "platform/OpenFile.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

Obstacle opened(const Path& path, OpenFor purpose) {
  OpenFile file(operatingSystem());
  return file.open(path, purpose).obstacle;
}

TEST(FileSystem, OpensFilesForWhatTheyAreAskedFor) {
  struct Row {
    OpenFor purpose;
    Obstacle whereNothingIs;
    Obstacle whereAFileIs;
  };
  constexpr Row kRows[] = {
      {OpenFor::Reading, Obstacle::Missing, Obstacle::None},
      {OpenFor::Writing, Obstacle::Missing, Obstacle::None},
      {OpenFor::New, Obstacle::None, Obstacle::Exists},
      {OpenFor::NewAndPrivate, Obstacle::None, Obstacle::Exists},
      {OpenFor::Keeping, Obstacle::None, Obstacle::None},
  };
  for (const Row& row : kRows) {
    const TempFolder folder;
    writeBytes(folder / "f", "content");
    const int purpose = static_cast<int>(row.purpose);
    EXPECT_EQ(opened(folder / "f", row.purpose), row.whereAFileIs) << purpose;
    EXPECT_EQ(readBytes(folder / "f"), "content") << purpose;
    EXPECT_EQ(opened(folder / "g", row.purpose), row.whereNothingIs) << purpose;
    EXPECT_EQ(opened(folder / "missing/g", row.purpose), Obstacle::Missing) << purpose;
    EXPECT_NE(opened(folder.path(), row.purpose), Obstacle::None) << purpose;
  }
}

TEST(FileSystem, TellsTheSizeAndTheNamesOfAnOpenFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "content");
  OpenFile file(operatingSystem());
  ASSERT_FALSE(file.open(folder / "f", OpenFor::Reading));
  EXPECT_EQ(file.facts().size, 7U);
  EXPECT_EQ(file.facts().links, 1U);
  ASSERT_FALSE(operatingSystem().link(folder / "f", folder / "second"));
  OpenFile again(operatingSystem());
  ASSERT_FALSE(again.open(folder / "second", OpenFor::Reading));
  EXPECT_EQ(again.facts().links, 2U);
  EXPECT_EQ(operatingSystem().link(folder / "f", folder / "second").obstacle, Obstacle::Exists);
}

TEST(FileSystem, HasAFileForOneWhoKeepsIt) {
  const TempFolder folder;
  OpenFile first(operatingSystem());
  ASSERT_FALSE(first.open(folder / "f", OpenFor::Keeping));
  EXPECT_EQ(opened(folder / "f", OpenFor::Keeping), Obstacle::Held);
  EXPECT_FALSE(operatingSystem().removeKept(first.handle(), folder / "f"));
  EXPECT_FALSE(first.close());
  EXPECT_EQ(folder.listing(), "");
  EXPECT_EQ(opened(folder / "f", OpenFor::Keeping), Obstacle::None);
}

TEST(FileSystem, WritesAndCutsAtThePlaceItIsTold) {
  const TempFolder folder;
  writeBytes(folder / "f", "0123456789");
  OpenFile file(operatingSystem());
  ASSERT_FALSE(file.open(folder / "f", OpenFor::Writing));
  std::size_t count = 0;
  EXPECT_FALSE(operatingSystem().write(file.handle(), 4, "xy", count));
  EXPECT_EQ(count, 2U);
  EXPECT_FALSE(file.reserve(1000));
  EXPECT_FALSE(file.flush());
  EXPECT_EQ(readBytes(folder / "f"), "0123xy6789") << "reserved room does not show";
  EXPECT_FALSE(file.resize(7));
  EXPECT_FALSE(file.close());
  EXPECT_EQ(readBytes(folder / "f"), "0123xy6");
}

TEST(FileSystem, TellsWhichNamesAreThoseOfOneFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "same");
  writeBytes(folder / "g", "same");
  FileSystem& system = operatingSystem();
  ASSERT_FALSE(system.link(folder / "f", folder / "second"));
  EXPECT_TRUE(system.isSameFile(folder / "f", folder / "second"));
  EXPECT_TRUE(system.isSameFile(folder / "second", folder / "f"));
  EXPECT_TRUE(system.isSameFile(system.identity(folder / "f"), folder / "./second"));
  EXPECT_FALSE(system.isSameFile(folder / "f", folder / "g"));
  EXPECT_FALSE(system.isSameFile(folder / "f", folder / "missing"));
  EXPECT_FALSE(system.isSameFile(folder / "missing", folder / "missing"));
}

TEST(FileSystem, MovesToFreeNamesOnly) {
  const TempFolder folder;
  writeBytes(folder / "f", "f");
  writeBytes(folder / "g", "g");
  EXPECT_EQ(operatingSystem().move(folder / "f", folder / "g").obstacle, Obstacle::Exists);
  EXPECT_EQ(operatingSystem().move(folder / "h", folder / "i").obstacle, Obstacle::Missing);
  EXPECT_FALSE(operatingSystem().move(folder / "f", folder / "h"));
  EXPECT_EQ(folder.listing(), "g\nh\n");
  EXPECT_EQ(readBytes(folder / "h"), "f");
}

TEST(FileSystem, KeepsABackupThatIsTheLastCopy) {
  const TempFolder folder;
  writeBytes(folder / "backup", "old");
  EXPECT_FALSE(operatingSystem().removeBackup(folder / "backup", folder / "f"));
  EXPECT_EQ(folder.listing(), "backup\n");
  writeBytes(folder / "f", "new");
  EXPECT_FALSE(operatingSystem().removeBackup(folder / "backup", folder / "f"));
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FileSystem, HasAFolderForOneUser) {
  const TempFolder folder;
  FileSystem& system = operatingSystem();
  EXPECT_EQ(system.checkPrivateFolder(folder / "own").obstacle, Obstacle::Missing);
  EXPECT_EQ(folder.listing(), "") << "asking creates none";
  EXPECT_FALSE(system.createPrivateFolder(folder / "own"));
  EXPECT_FALSE(system.createPrivateFolder(folder / "own")) << "it exists, and is his own";
  EXPECT_FALSE(system.checkPrivateFolder(folder / "own"));
  writeBytes(folder / "file", "");
  EXPECT_EQ(system.createPrivateFolder(folder / "file").obstacle, Obstacle::Denied);
  EXPECT_EQ(system.checkPrivateFolder(folder / "file").obstacle, Obstacle::Denied);
  EXPECT_EQ(system.createPrivateFolder(folder / "missing/own").obstacle, Obstacle::Missing);
  EXPECT_EQ(system.checkPrivateFolder(folder / "missing/own").obstacle, Obstacle::Missing);
  writeBytes(folder / "own/f", "");
  system.removeFolder(folder / "own");
  EXPECT_EQ(system.look(folder / "own").kind, FileFacts::Kind::Folder) << "it is not empty";
  ASSERT_FALSE(system.remove(folder / "own/f"));
  system.removeFolder(folder / "own");
  EXPECT_EQ(folder.listing(), "file\n");
  EXPECT_FALSE(system.privateFolder().empty());
}

TEST(FileSystem, ListsWhatStandsInAFolder) {
  const TempFolder folder;
  writeBytes(folder / "f", "");
  writeBytes(folder / "g", "");
  std::set<std::string> names;
  EXPECT_FALSE(operatingSystem().list(folder.path(), [&](const Path& name) {
    if (name != "." && name != "..") names.insert(name.string());
  }));
  EXPECT_EQ(names, (std::set<std::string>{"f", "g"}));
  const auto visit = [](const Path& name) { ADD_FAILURE() << name; };
  EXPECT_EQ(operatingSystem().list(folder / "missing", visit).obstacle, Obstacle::Missing);
  EXPECT_TRUE(operatingSystem().list(folder / "f", visit)) << "not a folder";
}

TEST(FileSystem, KnowsOneNameForAllSpellingsOfAPath) {
  const TempFolder folder;
  ASSERT_FALSE(operatingSystem().createFolder(folder / "a"));
  const Path plain = operatingSystem().identity(folder / "f");
  EXPECT_FALSE(plain.empty());
  EXPECT_EQ(operatingSystem().identity(folder / "a/../f"), plain);
  EXPECT_EQ(operatingSystem().identity(folder / "./f"), plain);
  EXPECT_NE(operatingSystem().identity(folder / "g"), plain);
}

TEST(FileSystem, LocksAFileForThoseWhoAskForThat) {
  const TempFolder folder;
  writeBytes(folder / "f", "content");
  ASSERT_FALSE(operatingSystem().link(folder / "f", folder / "second"));
  const auto locked = [&](const char* name, OpenFor purpose, Sharing sharing) {
    OpenFile file(operatingSystem());
    EXPECT_FALSE(file.open(folder / name, purpose));
    return file.lock(sharing).obstacle;
  };
  for (const char* const name : {"f", "second"}) {
    OpenFile first(operatingSystem());
    ASSERT_FALSE(first.open(folder / "f", OpenFor::Reading));
    ASSERT_FALSE(first.lock(Sharing::Together));
    EXPECT_EQ(locked(name, OpenFor::Reading, Sharing::Together), Obstacle::None) << name;
    EXPECT_EQ(locked(name, OpenFor::Writing, Sharing::Alone), Obstacle::Held) << name;
    EXPECT_FALSE(first.close());
    ASSERT_FALSE(first.open(folder / "f", OpenFor::Writing));
    ASSERT_FALSE(first.lock(Sharing::Alone));
    EXPECT_EQ(locked(name, OpenFor::Reading, Sharing::Together), Obstacle::Held) << name;
    EXPECT_EQ(locked(name, OpenFor::Writing, Sharing::Alone), Obstacle::Held) << name;
    EXPECT_EQ(readBytes(folder / name), "content") << "others read it as ever";
    EXPECT_FALSE(first.close());
    EXPECT_EQ(locked(name, OpenFor::Writing, Sharing::Alone), Obstacle::None) << name;
  }
}

TEST(FileSystem, KnowsWhichProcessesRun) {
  EXPECT_TRUE(operatingSystem().isRunning(operatingSystem().process()));
  EXPECT_FALSE(operatingSystem().isRunning(4'294'967'290UL));
}

}  // namespace
}  // namespace brennet::platform
