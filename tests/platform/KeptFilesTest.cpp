// Old files that are put aside.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "platform/KeptFiles.h"
#include "platform/Patience.h"
#include "platform/Replacement.h"
#include "tests/support/OpenHandles.h"
#include "tests/support/PassingFileSystem.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

std::vector<std::string> keptFiles(const TempFolder& folder) {
  std::vector<std::string> names;
  std::istringstream lines(folder.listing());
  for (std::string name; std::getline(lines, name);) {
    if (name.starts_with("f.kept-")) names.push_back(name);
  }
  return names;
}

// A system that records the largest read, can refuse second names, new files, exchanges and moves,
// and reports `timesHeld` times that somebody is writing what is to be read.
class Reluctant : public test::PassingFileSystem {
 public:
  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override {
    const bool isNew = purpose == OpenFor::New || purpose == OpenFor::NewAndPrivate;
    if (isNew && !takesNewFiles) return refusal();
    return PassingFileSystem::open(path, purpose, file, facts);
  }
  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override {
    largestRead = std::max(largestRead, size);
    return PassingFileSystem::read(file, offset, bytes, size, count);
  }
  FileError link(const Path& path, const Path& second) override {
    return takesLinks ? PassingFileSystem::link(path, second) : refusal();
  }
  FileError exchange(const Path& replacement, const Path& path, const Path& backup) override {
    return takesExchanges ? PassingFileSystem::exchange(replacement, path, backup) : refusal();
  }

  FileError move(const Path& from, const Path& to) override {
    return takesMoves ? PassingFileSystem::move(from, to) : refusal();
  }

  FileError lock(FileHandle file, Sharing sharing) override {
    if (sharing == Sharing::Together && timesHeld-- > 0) {
      return {Obstacle::Held, std::make_error_code(std::errc::resource_unavailable_try_again)};
    }
    return PassingFileSystem::lock(file, sharing);
  }
  bool isSameFile(const Path& a, const Path& b) override {
    return !tellsFilesApart || PassingFileSystem::isSameFile(a, b);
  }
  void pause() override {}

  bool tellsFilesApart = true;
  bool takesLinks = true;
  bool takesNewFiles = true;
  bool takesExchanges = true;
  bool takesMoves = true;
  int timesHeld = 0;
  std::size_t largestRead = 0;

 private:
  static FileError refusal() {
    return {Obstacle::Denied, std::make_error_code(std::errc::permission_denied)};
  }
};

constexpr std::size_t kMoreThanAPiece = 200'000;
constexpr std::size_t kPiece = 65'536;

TEST(KeptFilesKeptName, HasTheLocalTime) {
  struct Row {
    std::int64_t time;
    const char* name;
  };
  constexpr Row kRows[] = {{0, "f.kept-19700101-000000"},
                           {951'827'696, "f.kept-20000229-123456"},
                           {4'102'444'799, "f.kept-20991231-235959"}};
  for (const Row& row : kRows) EXPECT_EQ(keptName("f", row.time), Path(row.name));
}

TEST(KeptFiles, HoldWhatWasReplaced) {
  const TempFolder folder;
  writeBytes(folder / "f", "damaged");
  EXPECT_FALSE(replaceFile(folder / "f", "new", OldContent::Keep));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  ASSERT_EQ(keptFiles(folder).size(), 1U);
  EXPECT_EQ(readBytes(folder / keptFiles(folder)[0]), "damaged");
}

TEST(KeptFiles, AreNotMadeOfNothing) {
  const TempFolder folder;
  EXPECT_FALSE(replaceFile(folder / "f", "new", OldContent::Keep));
  EXPECT_EQ(folder.listing(), "f\n");
  EXPECT_FALSE(replaceFile(folder / "f", "newer", OldContent::Drop));
  EXPECT_EQ(folder.listing(), "f\n");
}

// The files may be of any size.
TEST(KeptFiles, AreNotRead) {
  const TempFolder folder;
  Reluctant system;
  Patience patience;
  writeBytes(folder / "f", std::string(kMoreThanAPiece, 'd'));
  EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", OldContent::Keep));
  EXPECT_EQ(system.largestRead, 0U);
  ASSERT_EQ(keptFiles(folder).size(), 1U);
  EXPECT_EQ(readBytes(folder / keptFiles(folder)[0]), std::string(kMoreThanAPiece, 'd'));
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

TEST(KeptFiles, AreCopiedInPiecesWhereThereAreNoSecondNames) {
  const TempFolder folder;
  Reluctant system;
  Patience patience;
  system.takesLinks = false;
  writeBytes(folder / "f", std::string(kMoreThanAPiece, 'd') + "end");
  EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", OldContent::Keep));
  EXPECT_EQ(system.largestRead, kPiece);
  ASSERT_EQ(keptFiles(folder).size(), 1U);
  EXPECT_EQ(readBytes(folder / keptFiles(folder)[0]), std::string(kMoreThanAPiece, 'd') + "end");
  EXPECT_EQ(folder.listing(), "f\n" + keptFiles(folder)[0] + "\n");
}

TEST(KeptFiles, AreCopiedOnceNobodyWritesTheFile) {
  const TempFolder folder;
  Reluctant system;
  Patience patience;
  system.takesLinks = false;
  system.timesHeld = 3;
  writeBytes(folder / "f", "damaged");
  const std::size_t before = test::openHandles();
  EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", OldContent::Keep));
  EXPECT_EQ(test::openHandles(), before);
  EXPECT_LT(system.timesHeld, 0);
  ASSERT_EQ(keptFiles(folder).size(), 1U);
  EXPECT_EQ(readBytes(folder / keptFiles(folder)[0]), "damaged");
}

TEST(KeptFiles, AreCopiesOfWhatIsWrittenInPlace) {
  for (const bool hasSecondName : {false, true}) {
    const TempFolder folder;
    Reluctant system;
    Patience patience;
    system.takesExchanges = false;
    writeBytes(folder / "f", "damaged");
    if (hasSecondName) std::filesystem::create_hard_link(folder / "f", folder / "second");
    EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", OldContent::Keep));
    EXPECT_EQ(readBytes(folder / "f"), "new");
    ASSERT_EQ(keptFiles(folder).size(), 1U) << folder.listing();
    EXPECT_EQ(readBytes(folder / keptFiles(folder)[0]), "damaged");
    EXPECT_EQ(readBytes(folder / "second"), hasSecondName ? "new" : "");
  }
}

TEST(KeptFiles, AreNoneWhereTheFolderTakesNoFile) {
  const TempFolder folder;
  Reluctant system;
  Patience patience;
  system.takesNewFiles = false;
  system.takesLinks = false;
  writeBytes(folder / "f", "damaged");
  EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", OldContent::Keep))
      << "the save goes on";
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_EQ(folder.listing(), "f\n");
}

// A process put the file aside, and ended before the next step of its save.
TEST(KeptFiles, ThatAreTheFileItselfAreNotWritten) {
  for (const OldContent old : {OldContent::Keep, OldContent::Drop}) {
    for (const bool takesExchanges : {true, false}) {
      const TempFolder folder;
      Reluctant system;
      Patience patience;
      system.takesExchanges = takesExchanges;
      writeBytes(folder / "f", "damaged");
      std::filesystem::create_hard_link(folder / "f", folder / "f.kept-20010101-000000");
      EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", old));
      EXPECT_EQ(readBytes(folder / "f"), "new");
      ASSERT_EQ(keptFiles(folder).size(), 1U) << folder.listing();
      EXPECT_EQ(readBytes(folder / keptFiles(folder)[0]), "damaged");
    }
  }
}

TEST(KeptFiles, AreNotTakenForTheFileWhichHasNoOtherName) {
  for (const bool takesExchanges : {true, false}) {
    const TempFolder folder;
    Reluctant system;
    Patience patience;
    system.tellsFilesApart = false;
    system.takesExchanges = takesExchanges;
    writeBytes(folder / "f", "damaged");
    writeBytes(folder / "f.kept-20010101-000000", "first");
    writeBytes(folder / "f.kept-20020101-000000", "second");
    EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", OldContent::Keep));
    ASSERT_EQ(keptFiles(folder).size(), 3U) << folder.listing();
    EXPECT_EQ(readBytes(folder / keptFiles(folder)[0]), "first");
    EXPECT_EQ(readBytes(folder / keptFiles(folder)[1]), "second");
    EXPECT_EQ(readBytes(folder / keptFiles(folder)[2]), "damaged");
  }
}

TEST(KeptFiles, AreNotMadeOfNothingThatIsWrittenInPlace) {
  const TempFolder folder;
  Reluctant system;
  Patience patience;
  system.takesMoves = false;
  EXPECT_FALSE(replaceFileOn(system, patience, folder / "f", "new", OldContent::Keep));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(KeptFiles, OfOneSecondHaveNamesOfTheirOwn) {
  const TempFolder folder;
  for (const char* const bytes : {"1", "2", "3"}) {
    writeBytes(folder / "f", bytes);
    EXPECT_FALSE(replaceFile(folder / "f", "new", OldContent::Keep));
  }
  std::string contents;
  for (const std::string& name : keptFiles(folder)) contents += readBytes(folder / name);
  EXPECT_EQ(contents, "123");
}

TEST(KeptFiles, AreThreeAtMost) {
  const TempFolder folder;
  for (const char* const name :
       {"f.kept-20010101-000000", "f.kept-20020101-000000", "f.kept-20030101-000000",
        "f.kept-20030101-00000", "f.kept-20030101-0000000", "f.kept-mine",
        "g.kept-20000101-000000"}) {
    writeBytes(folder / name, name);
  }
  writeBytes(folder / "f", "damaged");
  EXPECT_FALSE(replaceFile(folder / "f", "new", OldContent::Keep));
  const std::string listing = folder.listing();
  EXPECT_EQ(listing.find("f.kept-20010101-000000\n"), std::string::npos) << "the oldest";
  for (const char* const name :
       {"f.kept-20020101-000000\n", "f.kept-20030101-000000\n", "f.kept-20030101-00000\n",
        "f.kept-20030101-0000000\n", "f.kept-mine\n", "g.kept-20000101-000000\n"}) {
    EXPECT_NE(listing.find(name), std::string::npos) << name;
  }
  EXPECT_EQ(keptFiles(folder).size(), 6U) << listing;
}

}  // namespace
}  // namespace brennet::platform
