// How a file takes the place of another while the system or somebody else is in the way.

#include "platform/Replacement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "platform/Patience.h"
#include "tests/support/PassingFileSystem.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

FileError obstacle(Obstacle kind) {
  return {kind, std::make_error_code(std::errc::io_error)};
}

constexpr int kTries = Patience::kPauses + 1;

// A system in which others do something at an exchange or a move, and while this process waits.
class Crowded : public test::PassingFileSystem {
 public:
  FileError exchange(const Path& replacement, const Path& path, const Path& backup) override {
    ++exchanges;
    FileError error = beforeExchange ? beforeExchange(path, backup) : FileError();
    if (error) return error;
    error = PassingFileSystem::exchange(replacement, path, backup);
    if (afterExchange) afterExchange(replacement);
    return error;
  }
  FileError flush(FileHandle file) override {
    const FileError error = beforeFlush ? std::exchange(beforeFlush, {})() : FileError();
    return error ? error : PassingFileSystem::flush(file);
  }
  FileError lock(FileHandle file, Sharing sharing) override {
    const FileError error = beforeLock ? beforeLock(sharing) : FileError();
    return error ? error : PassingFileSystem::lock(file, sharing);
  }
  FileError move(const Path& from, const Path& to) override {
    const FileError error = beforeMove ? beforeMove(from, to) : FileError();
    return error ? error : PassingFileSystem::move(from, to);
  }
  void pause() override {
    ++pauses;
    if (whileWaiting) whileWaiting();
  }

  // Without `resolvesLinks`, a link is followed only when a file is opened for Creating.
  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override {
    const bool follows = !resolvesLinks && purpose == OpenFor::Creating;
    return PassingFileSystem::open(follows ? PassingFileSystem::resolved(path) : path, purpose,
                                   file, facts);
  }
  Path resolved(const Path& path) override {
    return resolvesLinks ? PassingFileSystem::resolved(path) : path;
  }

  bool resolvesLinks = true;
  std::function<FileError(const Path& path, const Path& backup)> beforeExchange;
  std::function<void(const Path& replacement)> afterExchange;
  std::function<FileError()> beforeFlush;
  std::function<FileError(Sharing sharing)> beforeLock;
  std::function<FileError(const Path& from, const Path& to)> beforeMove;
  std::function<void()> whileWaiting;
  int exchanges = 0;
  int pauses = 0;
};

class ReplacementTest : public testing::Test {
 protected:
  ReplacementTest() { writeBytes(path_, "old"); }

  FileError replace() {
    Patience patience;
    return replaceFileOn(system_, patience, path_, "new", OldContent::Drop);
  }
  FileError settled() {
    Patience patience;
    return settle(system_, patience, path_);
  }

  TempFolder folder_;
  Path path_ = folder_ / "f";
  Path backup_ = backupName(path_);
  Crowded system_;
};

TEST_F(ReplacementTest, IsUnderWayWhereTheFileOrItsBackupStands) {
  struct Row {
    bool file, backup;
    Obstacle obstacle;
    bool isBeingReplaced;
  };
  constexpr Row kRows[] = {
      {false, false, Obstacle::Missing, false}, {true, false, Obstacle::Missing, true},
      {false, true, Obstacle::Missing, true},   {true, true, Obstacle::Missing, true},
      {true, true, Obstacle::Denied, false},    {true, true, Obstacle::None, false},
  };
  for (const Row& row : kRows) {
    std::filesystem::remove(path_);
    std::filesystem::remove(backup_);
    if (row.file) writeBytes(path_, "old");
    if (row.backup) writeBytes(backup_, "old");
    EXPECT_EQ(isBeingReplaced(system_, path_, obstacle(row.obstacle)), row.isBeingReplaced)
        << row.file << row.backup << static_cast<int>(row.obstacle);
  }
}

TEST_F(ReplacementTest, WaitsForAnotherProcessThatHasMovedTheFileAway) {
  system_.beforeExchange = [&](const Path& path, const Path& backup) {
    if (system_.exchanges > 1) return FileError();
    std::filesystem::rename(path, backup);
    return obstacle(Obstacle::Missing);
  };
  system_.whileWaiting = [&] { std::filesystem::rename(backup_, path_); };
  EXPECT_FALSE(replace());
  EXPECT_EQ(system_.pauses, 1);
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(ReplacementTest, LeavesTheBackupWhereThatProcessHasEnded) {
  system_.beforeExchange = [&](const Path& path, const Path& backup) {
    if (system_.exchanges == 1) std::filesystem::rename(path, backup);
    return obstacle(Obstacle::Missing);
  };
  EXPECT_EQ(replace().obstacle, Obstacle::Missing);
  EXPECT_EQ(system_.exchanges, kTries);
  EXPECT_EQ(readBytes(backup_), "old");
  EXPECT_EQ(folder_.listing(), "f.brennet-old\n");
}

TEST_F(ReplacementTest, DoesNotWaitForAFileThatIsGoneForGood) {
  system_.beforeExchange = [](const Path& path, const Path&) {
    std::filesystem::remove(path);
    return obstacle(Obstacle::Missing);
  };
  EXPECT_FALSE(replace());
  EXPECT_EQ(system_.pauses, 0);
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(ReplacementTest, WaitsForAFileThatIsHeldAndWritesInPlaceInTheEnd) {
  for (const int held : {1, kTries - 1, kTries}) {
    writeBytes(path_, "old");
    system_.exchanges = 0;
    system_.pauses = 0;
    system_.beforeExchange = [&](const Path&, const Path&) {
      return system_.exchanges <= held ? obstacle(Obstacle::Held) : FileError();
    };
    EXPECT_FALSE(replace());
    EXPECT_EQ(system_.exchanges, std::min(held + 1, kTries));
    EXPECT_EQ(system_.pauses, std::min(held, kTries - 1));
    EXPECT_EQ(readBytes(path_), "new");
    EXPECT_EQ(folder_.listing(), "f\n");
  }
}

TEST_F(ReplacementTest, MakesTheFileThatALinkToNothingNames) {
  system_.resolvesLinks = false;
  std::filesystem::remove(path_);
  std::filesystem::create_symlink(folder_ / "g", path_);
  EXPECT_FALSE(isBeingReplaced(system_, path_, obstacle(Obstacle::Missing)));
  EXPECT_FALSE(replace());
  EXPECT_EQ(system_.pauses, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(path_));
  EXPECT_EQ(readBytes(folder_ / "g"), "new");
}

TEST_F(ReplacementTest, EndsWhatStoppedHalfway) {
  system_.beforeExchange = [](const Path& path, const Path& backup) {
    std::filesystem::rename(path, backup);
    return obstacle(Obstacle::Halfway);
  };
  EXPECT_FALSE(replace());
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(ReplacementTest, PutsTheOldFileBackWhereItStoppedHalfwayForGood) {
  system_.beforeExchange = [](const Path& path, const Path& backup) {
    std::filesystem::rename(path, backup);
    return obstacle(Obstacle::Halfway);
  };
  system_.beforeMove = [&](const Path& from, const Path&) {
    return from == backup_ ? FileError() : obstacle(Obstacle::Denied);
  };
  EXPECT_FALSE(replace()) << "it is written in place";
  EXPECT_EQ(system_.exchanges, 1);
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(ReplacementTest, WritesInPlaceAtOnceWhereTheRightsDoNotReach) {
  system_.beforeExchange = [](const Path&, const Path&) { return obstacle(Obstacle::Denied); };
  EXPECT_FALSE(replace());
  EXPECT_EQ(system_.exchanges, 1);
  EXPECT_EQ(system_.pauses, 0);
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(ReplacementTest, TakesAnotherTemporaryNameWhereOneIsTaken) {
  const std::string taken = "f.brennet-" + std::to_string(system_.process()) + "-0.tmp";
  writeBytes(folder_ / taken, "somebody's");
  EXPECT_FALSE(replace());
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(readBytes(folder_ / taken), "somebody's");
  EXPECT_EQ(system_.exchanges, 1);
}

TEST_F(ReplacementTest, WritesInPlaceWhereAllTemporaryNamesAreTaken) {
  for (int number = 0; number < 100; ++number) {
    writeBytes(folder_ / ("f.brennet-" + std::to_string(system_.process()) + "-" +
                          std::to_string(number) + ".tmp"),
               "somebody's");
  }
  EXPECT_FALSE(replace());
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(system_.exchanges, 0);
}

TEST_F(ReplacementTest, StartsAgainWhereAFileHasComeMeanwhile) {
  std::filesystem::remove(path_);
  int moves = 0;
  system_.beforeMove = [&](const Path&, const Path& to) {
    if (++moves == 1) writeBytes(to, "another's");
    return FileError();
  };
  EXPECT_FALSE(replace());
  EXPECT_EQ(moves, 1);
  EXPECT_EQ(system_.exchanges, 1);
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(folder_.listing(), "f\n");
}

// What the player would lose is not written over.
TEST_F(ReplacementTest, DoesNotWriteInPlaceWhatCouldNotBePutAside) {
  std::filesystem::create_hard_link(path_, folder_ / "second");
  system_.beforeFlush = [] { return obstacle(Obstacle::Other); };
  Patience patience;
  EXPECT_TRUE(replaceFileOn(system_, patience, path_, "new", OldContent::Keep));
  EXPECT_EQ(readBytes(path_), "old");
  EXPECT_EQ(folder_.listing(), "f\nsecond\n");
}

// The name is free at once, and what another process puts there is not ours to remove.
TEST_F(ReplacementTest, LeavesItsTemporaryNameToOthers) {
  Path name;
  system_.afterExchange = [&](const Path& replacement) {
    name = replacement;
    writeBytes(name, "another's");
  };
  EXPECT_FALSE(replace());
  EXPECT_EQ(readBytes(path_), "new");
  EXPECT_EQ(readBytes(name), "another's");
}

// A process of ours that writes the file in place locks it for that.
TEST_F(ReplacementTest, DoesNotExchangeAFileThatIsLocked) {
  bool isLocked = true;
  system_.beforeLock = [&](Sharing sharing) {
    return isLocked && sharing == Sharing::Together ? obstacle(Obstacle::Held) : FileError();
  };
  system_.beforeExchange = [&](const Path&, const Path&) {
    EXPECT_FALSE(isLocked);
    return FileError();
  };
  system_.whileWaiting = [&] { isLocked = false; };
  EXPECT_FALSE(replace());
  EXPECT_EQ(system_.pauses, 1);
  EXPECT_EQ(readBytes(path_), "new");
}

TEST_F(ReplacementTest, WaitsForABackupToBecomeTheFile) {
  for (const int waits : {1, kTries - 1}) {
    std::filesystem::rename(path_, backup_);
    system_.pauses = 0;
    system_.whileWaiting = [&] {
      if (system_.pauses == waits) std::filesystem::rename(backup_, path_);
    };
    EXPECT_FALSE(settled());
    EXPECT_EQ(system_.pauses, waits);
    EXPECT_EQ(readBytes(path_), "old");
  }
}

TEST_F(ReplacementTest, MakesABackupTheFileThatNobodyWants) {
  std::filesystem::rename(path_, backup_);
  EXPECT_FALSE(settled());
  EXPECT_EQ(system_.pauses, Patience::kPauses);
  EXPECT_EQ(readBytes(path_), "old");
  EXPECT_EQ(folder_.listing(), "f\n");
}

TEST_F(ReplacementTest, IsDoneWhereSomebodyElseMakesTheBackupTheFile) {
  for (const Obstacle kind : {Obstacle::Missing, Obstacle::Exists, Obstacle::Denied}) {
    std::filesystem::remove(path_);
    writeBytes(backup_, "old");
    system_.beforeMove = [&](const Path&, const Path&) { return obstacle(kind); };
    EXPECT_EQ(settled().obstacle, kind == Obstacle::Denied ? Obstacle::Denied : Obstacle::None);
  }
}

TEST_F(ReplacementTest, RemovesABackupBesideTheFile) {
  writeBytes(backup_, "older");
  EXPECT_FALSE(settled());
  EXPECT_EQ(system_.pauses, 0);
  EXPECT_EQ(readBytes(path_), "old");
  EXPECT_EQ(folder_.listing(), "f\n");
}

}  // namespace
}  // namespace brennet::platform
