// The system calls under the file functions, one by one.

#include "platform/FileSystem.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <set>
#include <string>

#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;
using Kind = FileFacts::Kind;

FileSystem& sys() {
  return operatingSystem();
}

// A file that is opened for one test, and the result of opening it.
class Opened {
 public:
  Opened(const Path& path, OpenFor purpose) {
    obstacle_ = sys().open(path, purpose, handle_, facts_).obstacle;
  }
  ~Opened() {
    if (handle_ != kNoFile) static_cast<void>(sys().close(handle_));
  }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  [[nodiscard]] Obstacle obstacle() const { return obstacle_; }
  [[nodiscard]] FileHandle handle() const { return handle_; }
  [[nodiscard]] const FileFacts& facts() const { return facts_; }
  [[nodiscard]] int descriptor() const { return static_cast<int>(handle_); }

 private:
  FileHandle handle_ = kNoFile;
  FileFacts facts_;
  Obstacle obstacle_ = Obstacle::None;
};

// An environment variable that a test changes.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const char* value) : name_(name) {
    if (const char* const old = std::getenv(name)) old_ = old;
    set(value);
  }
  ~ScopedVariable() { set(old_ ? old_->c_str() : nullptr); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  void set(const char* value) {
    if (value != nullptr) {
      setenv(name_, value, 1);
    } else {
      unsetenv(name_);
    }
    tzset();
  }

  const char* name_;
  std::optional<std::string> old_;
};

mode_t rightsOf(const Path& path) {
  struct stat status {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777U;
}

TEST(FileSystemOpening, MeetsTheseObstacles) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(mkdir((folder / "folder").c_str(), 0700), 0);
  ASSERT_EQ(symlink((folder / "nothing").c_str(), (folder / "link").c_str()), 0);
  struct Row {
    const char* name;
    OpenFor purpose;
    Obstacle obstacle;
  };
  const Row kRows[] = {
      {"f", OpenFor::Reading, Obstacle::None},
      {"f", OpenFor::Writing, Obstacle::None},
      {"f", OpenFor::New, Obstacle::Exists},
      {"f", OpenFor::NewAndPrivate, Obstacle::Exists},
      {"f", OpenFor::Creating, Obstacle::Exists},
      {"f", OpenFor::Keeping, Obstacle::None},
      {"missing", OpenFor::Reading, Obstacle::Missing},
      {"missing", OpenFor::Writing, Obstacle::Missing},
      {"missing/f", OpenFor::New, Obstacle::Missing},
      {"f/f", OpenFor::New, Obstacle::Missing},
      {"folder", OpenFor::Reading, Obstacle::Other},
      {"folder", OpenFor::Writing, Obstacle::Other},
      {"link", OpenFor::New, Obstacle::Exists},
      {"link", OpenFor::Keeping, Obstacle::Other},
  };
  for (const Row& row : kRows) {
    const Opened file(folder / row.name, row.purpose);
    EXPECT_EQ(file.obstacle(), row.obstacle) << row.name << ' ' << static_cast<int>(row.purpose);
    EXPECT_EQ(file.handle() == kNoFile, row.obstacle != Obstacle::None) << row.name;
  }
  EXPECT_EQ(folder.listing(), "f\nfolder\nlink\n");
  EXPECT_EQ(readBytes(folder / "f"), "old");
}

TEST(FileSystemOpening, MakesFilesWithTheseRights) {
  const mode_t mask = umask(0027);
  struct Row {
    OpenFor purpose;
    mode_t rights;
  };
  constexpr Row kRows[] = {{OpenFor::New, 0640},
                           {OpenFor::Creating, 0640},
                           {OpenFor::NewAndPrivate, 0600},
                           {OpenFor::Keeping, 0600}};
  for (const Row& row : kRows) {
    const TempFolder folder;
    const Opened file(folder / "f", row.purpose);
    EXPECT_EQ(file.obstacle(), Obstacle::None);
    EXPECT_EQ(rightsOf(folder / "f"), row.rights) << static_cast<int>(row.purpose);
    EXPECT_EQ(file.facts().kind, Kind::File);
    EXPECT_EQ(file.facts().size, 0U);
    EXPECT_EQ(file.facts().links, 1U);
    EXPECT_NE(fcntl(file.descriptor(), F_GETFD) & FD_CLOEXEC, 0) << "not for other programs";
  }
  umask(mask);
}

TEST(FileSystemOpening, KeepsAFileForOneAtATime) {
  const TempFolder folder;
  {
    const Opened first(folder / "f", OpenFor::Keeping);
    EXPECT_EQ(first.obstacle(), Obstacle::None);
    EXPECT_EQ(Opened(folder / "f", OpenFor::Keeping).obstacle(), Obstacle::Held);
    EXPECT_EQ(Opened(folder / "f", OpenFor::Reading).obstacle(), Obstacle::None);
  }
  EXPECT_EQ(Opened(folder / "f", OpenFor::Keeping).obstacle(), Obstacle::None);
}

// A host may have closed its standard input.
TEST(FileSystemOpening, TakesTheFirstNumberOfFilesToo) {
  const TempFolder folder;
  const int input = dup(STDIN_FILENO);
  ::close(STDIN_FILENO);
  {
    const Opened file(folder / "f", OpenFor::New);
    EXPECT_EQ(file.obstacle(), Obstacle::None);
    EXPECT_EQ(file.descriptor(), STDIN_FILENO);
  }
  EXPECT_FALSE(sys().flushFolder(folder.path()));
  if (input >= 0) {
    EXPECT_EQ(dup2(input, STDIN_FILENO), STDIN_FILENO);
    ::close(input);
  }
}

TEST(FileSystemLooking, TellsWhatStandsThere) {
  const TempFolder folder;
  writeBytes(folder / "f", "four");
  ASSERT_EQ(link((folder / "f").c_str(), (folder / "second").c_str()), 0);
  ASSERT_EQ(mkdir((folder / "folder").c_str(), 0700), 0);
  ASSERT_EQ(symlink("f", (folder / "link").c_str()), 0);
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(sys().look(folder / "folder").kind, Kind::Folder);
  EXPECT_EQ(sys().look(folder / "link").kind, Kind::Link);
  EXPECT_EQ(sys().look(folder / "pipe").kind, Kind::Other);
  EXPECT_EQ(sys().look(folder / "missing").kind, Kind::Nothing);
  const FileFacts facts = sys().look(folder / "f");
  EXPECT_EQ(facts.kind, Kind::File);
  EXPECT_EQ(facts.size, 4U);
  EXPECT_EQ(facts.links, 2U);
}

TEST(FileSystemLooking, TellsTheAge) {
  const TempFolder folder;
  writeBytes(folder / "f", "");
  const auto aged = [&](std::time_t seconds) {
    const std::array<timespec, 2> times{{{0, UTIME_NOW}, {std::time(nullptr) - seconds, 0}}};
    EXPECT_EQ(utimensat(AT_FDCWD, (folder / "f").c_str(), times.data(), 0), 0);
    return sys().look(folder / "f").age;
  };
  EXPECT_GE(aged(500), 500U);
  EXPECT_LT(aged(500), 5000U);
  EXPECT_EQ(aged(-500), 0U) << "written in the future";
}

TEST(FileSystemPrivateFolders, AreThisUsersAlone) {
  const TempFolder folder;
  const Path path = folder / "private";
  EXPECT_FALSE(sys().createPrivateFolder(path));
  EXPECT_EQ(rightsOf(path), 0700U);
  EXPECT_FALSE(sys().createPrivateFolder(path)) << "it is there already";
  for (mode_t bit = 1; bit <= 040; bit <<= 1U) {
    ASSERT_EQ(chmod(path.c_str(), 0700 | bit), 0);
    EXPECT_EQ(sys().createPrivateFolder(path).obstacle, Obstacle::Denied) << std::oct << bit;
  }
  if (geteuid() == 0) {
    ASSERT_EQ(chmod(path.c_str(), 0700), 0);
    ASSERT_EQ(chown(path.c_str(), 65534, 65534), 0);
    EXPECT_EQ(sys().createPrivateFolder(path).obstacle, Obstacle::Denied) << "another user's";
  }
  sys().removeFolder(path);
  EXPECT_EQ(folder.listing(), "");
}

TEST(FileSystemPrivateFolders, AreFolders) {
  const TempFolder folder;
  writeBytes(folder / "f", "");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0700), 0);
  ASSERT_EQ(mkdir((folder / "own").c_str(), 0700), 0);
  ASSERT_EQ(symlink("own", (folder / "link").c_str()), 0);
  EXPECT_EQ(sys().createPrivateFolder(folder / "f").obstacle, Obstacle::Denied);
  EXPECT_EQ(sys().createPrivateFolder(folder / "link").obstacle, Obstacle::Denied);
  EXPECT_EQ(sys().createPrivateFolder(folder / "missing" / "f").obstacle, Obstacle::Missing);
}

TEST(FileSystemPrivateFolders, HaveTheirPlaceByTheUser) {
  const std::string name = "brennet-" + std::to_string(geteuid());
  struct Row {
    const char* chosen;
    std::string folder;
  };
  const Row kRows[] = {{"/chosen", "/chosen/"}, {nullptr, "/var/tmp/"}, {"relative", "/var/tmp/"}};
  for (const Row& row : kRows) {
    const ScopedVariable chosen("TMPDIR", row.chosen);
    EXPECT_EQ(sys().privateFolder(), Path(row.folder + name));
  }
}

TEST(FileSystemFlushingAFolder, TellsWhereThereIsNone) {
  const TempFolder folder;
  writeBytes(folder / "f", "");
  EXPECT_FALSE(sys().flushFolder(folder.path()));
  EXPECT_FALSE(sys().flushFolder(""));
  EXPECT_EQ(sys().flushFolder(folder / "missing").obstacle, Obstacle::Missing);
  EXPECT_EQ(sys().flushFolder(folder / "f").obstacle, Obstacle::Missing);
}

TEST(FileSystemMoving, LeavesATakenNameAlone) {
  const TempFolder folder;
  writeBytes(folder / "from", "new");
  writeBytes(folder / "to", "old");
  EXPECT_EQ(sys().move(folder / "from", folder / "to").obstacle, Obstacle::Exists);
  EXPECT_EQ(readBytes(folder / "to"), "old");
  EXPECT_FALSE(sys().move(folder / "from", folder / "other"));
  EXPECT_EQ(sys().move(folder / "from", folder / "other").obstacle, Obstacle::Missing);
  EXPECT_EQ(folder.listing(), "other\nto\n");
}

TEST(FileSystemRemovingABackup, WaitsForTheFile) {
  const TempFolder folder;
  writeBytes(folder / "backup", "old");
  EXPECT_FALSE(sys().removeBackup(folder / "backup", folder / "f"));
  EXPECT_EQ(folder.listing(), "backup\n");
  writeBytes(folder / "f", "new");
  EXPECT_FALSE(sys().removeBackup(folder / "backup", folder / "f"));
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FileSystemListing, VisitsEveryName) {
  const TempFolder folder;
  for (const char* const name : {"a", "b", ".hidden"}) writeBytes(folder / name, "");
  std::set<std::string> names;
  EXPECT_FALSE(sys().list(folder.path(), [&](const Path& name) { names.insert(name.string()); }));
  for (const char* const name : {"a", "b", ".hidden"}) EXPECT_EQ(names.count(name), 1U) << name;
  EXPECT_TRUE(sys().list(folder / "missing", [](const Path&) { ADD_FAILURE(); }));
}

TEST(FileSystemLinks, AreFollowedToTheFileTheyMean) {
  const TempFolder folder;
  ASSERT_EQ(mkdir((folder / "folder").c_str(), 0700), 0);
  writeBytes(folder / "folder" / "f", "");
  ASSERT_EQ(symlink("f", (folder / "folder" / "near").c_str()), 0);
  ASSERT_EQ(symlink("folder/near", (folder / "far").c_str()), 0);
  ASSERT_EQ(symlink((folder / "far").c_str(), (folder / "whole").c_str()), 0);
  ASSERT_EQ(symlink("nothing", (folder / "empty").c_str()), 0);
  ASSERT_EQ(symlink("loop", (folder / "loop").c_str()), 0);
  struct Row {
    const char* name;
    const char* meant;
  };
  constexpr Row kRows[] = {
      {"folder/f", "folder/f"}, {"folder/near", "folder/f"}, {"far", "folder/f"},
      {"whole", "folder/f"},    {"empty", "nothing"},        {"loop", "loop"},
      {"missing", "missing"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(sys().resolved(folder / row.name).lexically_normal(), folder / row.meant) << row.name;
  }
}

TEST(FileSystemIdentities, AreTheSameForAllSpellings) {
  const TempFolder folder;
  ASSERT_EQ(mkdir((folder / "folder").c_str(), 0700), 0);
  ASSERT_EQ(symlink("folder", (folder / "link").c_str()), 0);
  const Path identity = sys().identity(folder / "folder" / "f");
  EXPECT_EQ(identity.filename(), "f");
  EXPECT_EQ(sys().identity(folder / "link" / "f"), identity);
  EXPECT_EQ(sys().identity(folder / "folder" / ".." / "folder" / "." / "f"), identity);
  EXPECT_NE(sys().identity(folder / "folder" / "g"), identity);
  EXPECT_NE(sys().identity(folder / "f"), identity);
  EXPECT_EQ(sys().identity(folder / "missing" / "f"), Path());
  EXPECT_EQ(sys().identity("f"), std::filesystem::current_path() / "f");
}

TEST(FileSystemProcesses, AreRunningOrNot) {
  EXPECT_EQ(sys().process(), static_cast<unsigned long>(getpid()));
  EXPECT_TRUE(sys().isRunning(sys().process()));
  EXPECT_TRUE(sys().isRunning(1)) << "usually another user's";
  EXPECT_FALSE(sys().isRunning(0));
  EXPECT_FALSE(sys().isRunning(INT_MAX)) << "larger than any process number";
  EXPECT_FALSE(sys().isRunning(static_cast<unsigned long>(INT_MAX) + 1 + sys().process()));
}

TEST(FileSystemClockOnTheWall, ShowsTheLocalTime) {
  const ScopedVariable zone("TZ", "EAST-5");
  constexpr std::int64_t kFiveHours = 5 * 60 * 60;
  const std::int64_t before = std::time(nullptr) + kFiveHours;
  const std::int64_t shown = sys().wallTime();
  EXPECT_GE(shown, before);
  EXPECT_LE(shown, std::time(nullptr) + kFiveHours);
}

// The host may be waiting for a signal of its own.
TEST(FileSystemWriting, LeavesAPendingSignalToTheHost) {
  sigset_t signal;
  sigset_t before;
  sigemptyset(&signal);
  sigaddset(&signal, SIGXFSZ);
  ASSERT_EQ(pthread_sigmask(SIG_BLOCK, &signal, &before), 0);
  ASSERT_EQ(raise(SIGXFSZ), 0);
  const TempFolder folder;
  {
    const Opened file(folder / "f", OpenFor::New);
    std::size_t count = 0;
    EXPECT_FALSE(sys().write(file.handle(), 0, "text", count));
    EXPECT_EQ(count, 4U);
    EXPECT_FALSE(sys().resize(file.handle(), 2));
  }
  EXPECT_EQ(readBytes(folder / "f"), "te");
  constexpr timespec kNow{};
  EXPECT_EQ(sigtimedwait(&signal, nullptr, &kNow), SIGXFSZ);
  sigset_t blocked;
  ASSERT_EQ(pthread_sigmask(SIG_SETMASK, &before, &blocked), 0);
  EXPECT_EQ(sigismember(&blocked, SIGXFSZ), 1);
}

// The system gives no reason for a write that took no bytes.
TEST(FileSystemWriting, FailsAsOnAFullDiskWhereNothingIsTaken) {
  const TempFolder folder;
  const Opened file(folder / "f", OpenFor::New);
  std::size_t count = 0;
  errno = 0;
  EXPECT_EQ(sys().write(file.handle(), 0, "", count).code, std::errc::no_space_on_device);
  EXPECT_EQ(count, 0U);
}

TEST(FileSystemReserving, LeavesTheSizeAlone) {
  const TempFolder folder;
  const Opened file(folder / "f", OpenFor::New);
  for (const std::uint64_t size : {0U, 1U, 5000U}) {
    EXPECT_FALSE(sys().reserve(file.handle(), size)) << size;
    EXPECT_EQ(sys().look(folder / "f").size, 0U) << size;
  }
}

TEST(FileSystemReading, TellsWhereTheFileEnds) {
  const TempFolder folder;
  writeBytes(folder / "f", "four");
  const Opened file(folder / "f", OpenFor::Reading);
  EXPECT_EQ(file.facts().size, 4U);
  std::string bytes(3, '\0');
  std::size_t count = 9;
  EXPECT_FALSE(sys().read(file.handle(), 2, bytes.data(), bytes.size(), count));
  EXPECT_EQ(bytes.substr(0, count), "ur");
  EXPECT_FALSE(sys().read(file.handle(), 4, bytes.data(), bytes.size(), count));
  EXPECT_EQ(count, 0U);
}

}  // namespace
}  // namespace brennet::platform
