// Old files that are put aside.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "platform/KeptFiles.h"
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

TEST(KeptName, HasTheLocalTime) {
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
