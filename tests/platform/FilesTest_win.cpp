// Attributes, other programs that hold a file, and all kinds of names.

#include <windows.h>
// gtest.h comes after windows.h, which would undo its macros.
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

// Another program that has the file open, and shares it as `sharing` says.
class Holder {
 public:
  Holder(const Path& path, DWORD access, DWORD sharing)
      : handle_(CreateFileW(path.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE) << GetLastError();
  }
  ~Holder() { CloseHandle(handle_); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

 private:
  HANDLE handle_;
};

// Holds the file alone from now on, until the thread that is returned releases it.
std::thread holdForAMoment(const Path& path) {
  auto holder = std::make_unique<Holder>(path, GENERIC_READ, 0);
  return std::thread([holder = std::move(holder)]() mutable {
    Sleep(50);
    holder.reset();
  });
}

TEST(FilesReading, RefusesADevice) {
  std::string read = "old";
  EXPECT_TRUE(readFile(L"NUL", read, kAnySize));
  EXPECT_EQ(read, "");
}

TEST(FilesReading, ReadsWhatAnotherProgramIsWritingOrRenaming) {
  const TempFolder folder;
  writeBytes(folder / "f", "bytes");
  for (const DWORD access : {DWORD{GENERIC_WRITE}, DWORD{DELETE}}) {
    const Holder holder(folder / "f", access, FILE_SHARE_READ);
    std::string read;
    EXPECT_FALSE(readFile(folder / "f", read, kAnySize)) << access;
    EXPECT_EQ(read, "bytes") << access;
  }
}

TEST(FilesReading, WaitsForAProgramThatHoldsTheFileForAMoment) {
  const TempFolder folder;
  writeBytes(folder / "f", "bytes");
  std::thread scanner = holdForAMoment(folder / "f");
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  scanner.join();
  EXPECT_EQ(read, "bytes");
}

TEST(FilesReplacing, RefusesADevice) {
  EXPECT_TRUE(replaceFile(L"NUL", "new"));
}

TEST(FilesReplacing, LeavesAReadOnlyFileAlone) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  SetFileAttributesW((folder / "f").c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(replaceFile(folder / "f", "new").value(), ERROR_ACCESS_DENIED);
  SetFileAttributesW((folder / "f").c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(readBytes(folder / "f"), "old");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplacing, LeavesAFileAloneThatNobodyElseMayOpen) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  {
    const Holder holder(folder / "f", GENERIC_READ, 0);
    EXPECT_EQ(replaceFile(folder / "f", "new").value(), ERROR_SHARING_VIOLATION);
  }
  EXPECT_EQ(readBytes(folder / "f"), "old");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplacing, WaitsForAProgramThatLooksAtTheFileForAMoment) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  std::thread scanner = holdForAMoment(folder / "f");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  scanner.join();
  EXPECT_EQ(readBytes(folder / "f"), "new");
}

// A reader that does not share deletion keeps the file from being replaced, but not from being
// written.
TEST(FilesReplacing, WritesInPlaceWhereAReaderKeepsTheFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "a longer old content");
  {
    const Holder holder(folder / "f", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_FALSE(replaceFile(folder / "f", "new"));
  }
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_EQ(folder.listing(), "f\n");
}

// A second name could not be removed again while a reader has the file.
TEST(FilesReplacing, PutsTheOldFileAsideAsACopyWhereAReaderKeepsIt) {
  const TempFolder folder;
  writeBytes(folder / "f", "a longer old content");
  {
    const Holder holder(folder / "f", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_FALSE(replaceFile(folder / "f", "new", OldContent::Keep));
  }
  EXPECT_EQ(readBytes(folder / "f"), "new");
  const std::string listing = folder.listing();
  ASSERT_TRUE(listing.starts_with("f\nf.kept-")) << listing;
  const std::string kept = listing.substr(2, listing.find('\n', 2) - 2);
  EXPECT_EQ(listing, "f\n" + kept + "\n");
  EXPECT_EQ(readBytes(folder / kept), "a longer old content");
}

TEST(FilesReplacing, WritesBesideAProgramThatWritesAndLetsOthersDoSo) {
  for (const DWORD sharing : {FILE_SHARE_READ | FILE_SHARE_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE}) {
    const TempFolder folder;
    writeBytes(folder / "f", "a longer old content");
    {
      const Holder holder(folder / "f", GENERIC_WRITE, sharing);
      EXPECT_FALSE(replaceFile(folder / "f", "new")) << sharing;
    }
    EXPECT_EQ(readBytes(folder / "f"), "new") << sharing;
    // The file that the program has open goes once it is closed.
    std::string read;
    EXPECT_FALSE(readFile(folder / "f", read, kAnySize)) << sharing;
    EXPECT_EQ(folder.listing(), "f\n") << sharing;
  }
}

// What a process leaves that ends while it replaces a file.
constexpr char kBackup[] = "f.brennet-old";

TEST(FilesReading, FindsTheFileThatWasBeingReplaced) {
  const TempFolder folder;
  writeBytes(folder / kBackup, "old");
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read, "old");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReading, WaitsForAReplacementUnderWay) {
  const TempFolder folder;
  writeBytes(folder / kBackup, "old");
  std::thread writer([&] {
    Sleep(50);
    writeBytes(folder / "f", "new");
  });
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  writer.join();
  EXPECT_EQ(read, "new");
}

TEST(FilesReplacing, FinishesWhatWasLeftHalfDone) {
  const TempFolder folder;
  writeBytes(folder / kBackup, "old");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplacing, DoesNotTakeAnOldBackupForTheFile) {
  const TempFolder folder;
  writeBytes(folder / "f", "new");
  writeBytes(folder / kBackup, "old");
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(read, "new");
  writeBytes(folder / kBackup, "old");
  EXPECT_FALSE(replaceFile(folder / "f", "newer"));
  EXPECT_EQ(readBytes(folder / "f"), "newer");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReading, DoesNotBringAFileBackThatThePlayerHasDeleted) {
  const TempFolder folder;
  writeBytes(folder / "f", "new");
  writeBytes(folder / kBackup, "old");
  std::string read;
  EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
  std::filesystem::remove(folder / "f");
  EXPECT_TRUE(readFile(folder / "f", read, kAnySize));
  EXPECT_EQ(folder.listing(), "");
}

// While somebody holds the only copy, nothing replaces it.
TEST(FilesReplacing, DoesNotForgetABackupThatIsHeld) {
  const TempFolder folder;
  writeBytes(folder / kBackup, "old");
  {
    const Holder holder(folder / kBackup, GENERIC_READ, 0);
    std::string read;
    EXPECT_EQ(readFile(folder / "f", read, kAnySize).value(), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(replaceFile(folder / "f", "new").value(), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(folder.listing(), std::string(kBackup) + "\n");
  }
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "f"), "new");
  EXPECT_EQ(folder.listing(), "f\n");
}

TEST(FilesReplacing, RemovesLeftoversWhateverTheirCase) {
  const TempFolder folder;
  const Path leftover = folder / "SETTINGS.XML.brennet-1-0.tmp";
  writeBytes(leftover, "half");
  const auto before = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
  std::filesystem::last_write_time(leftover, before);
  EXPECT_FALSE(replaceFile(folder / "Settings.xml", "new"));
  EXPECT_EQ(folder.listing(), "Settings.xml\n");
}

TEST(FilesReplacing, LeavesAFolderWithTheNameOfABackupAlone) {
  const TempFolder folder;
  EXPECT_TRUE(createFolder(folder / kBackup));
  std::string read;
  EXPECT_TRUE(readFile(folder / "f", read, kAnySize));
  for (const char* const bytes : {"first", "second"}) {
    EXPECT_FALSE(replaceFile(folder / "f", bytes));
    EXPECT_EQ(readBytes(folder / "f"), bytes);
  }
  EXPECT_TRUE(folderExists(folder / kBackup));
}

// A reader finds the whole old or the whole new content, and always finds a file.
TEST(FilesReplacing, IsNotNoticedByAReader) {
  const TempFolder folder;
  const std::string contents[] = {std::string(5000, 'a'), std::string(7000, 'b')};
  writeBytes(folder / "f", contents[0]);
  std::thread writer([&] {
    for (int i = 1; i <= 200; ++i) EXPECT_FALSE(replaceFile(folder / "f", contents[i % 2]));
  });
  for (int i = 0; i < 200; ++i) {
    std::string read;
    EXPECT_FALSE(readFile(folder / "f", read, kAnySize));
    EXPECT_TRUE(read == contents[0] || read == contents[1]) << read.size();
  }
  writer.join();
}

TEST(FilesReplacing, TakesNamesOutsideTheAnsiCodePage) {
  const TempFolder folder;
  const Path name = folder.path() / pathFromUtf16(u"\u8C22\u0E01\U0001F600 \u00E9.xml");
  for (const char* const bytes : {"first", "second"}) {
    EXPECT_FALSE(replaceFile(name, bytes));
    std::string read;
    EXPECT_FALSE(readFile(name, read, kAnySize));
    EXPECT_EQ(read, bytes);
  }
  const Path inner = folder.path() / pathFromUtf16(u"\u0E01\u0E02");
  EXPECT_TRUE(createFolder(inner));
  EXPECT_TRUE(folderExists(inner));
}

// The paths of a temporary and of a kept file would be too long.
TEST(FilesReplacing, WritesInPlaceWhereThePathHasNoRoomForALongerOne) {
  const TempFolder folder;
  constexpr std::size_t kLongest = 250;
  const Path path = folder / std::string(kLongest - folder.path().native().size(), 'n');
  writeBytes(path, "old");
  for (const OldContent old : {OldContent::Drop, OldContent::Keep}) {
    EXPECT_FALSE(replaceFile(path, "new", old));
    EXPECT_EQ(readBytes(path), "new");
    writeBytes(path, "old");
  }
}

TEST(FilesReplacing, TakesPathsOfAnyLengthWhereTheySaySo) {
  const TempFolder folder;
  const Path inner = LR"(\\?\)" + (folder / std::string(200, 'd')).native();
  ASSERT_TRUE(createFolder(inner));
  const Path path = inner / std::string(100, 'n');
  for (const char* const bytes : {"first", "second"}) {
    EXPECT_FALSE(replaceFile(path, bytes));
    EXPECT_EQ(readBytes(path), bytes);
  }
  std::filesystem::remove(path);
  std::filesystem::remove(inner);
}

}  // namespace
}  // namespace brennet::platform
