// The kept files of writes in place, one for each file.

#include "platform/KeptWrite.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <list>
#include <string>

#include "platform/Files.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

// The folder for kept files is in one that belongs to this test alone.
class KeptWriteTest : public testing::Test {
 protected:
  KeptWriteTest() {
    const char* const before = std::getenv("TMPDIR");
    if (before != nullptr) before_ = before;
    setenv("TMPDIR", folder_.path().c_str(), 1);
  }
  ~KeptWriteTest() override {
    if (before_.empty()) {
      unsetenv("TMPDIR");
    } else {
      setenv("TMPDIR", before_.c_str(), 1);
    }
  }

  test::TempFolder folder_;

 private:
  std::string before_;
};

TEST_F(KeptWriteTest, OfManyFilesGoOnAtOnce) {
  Patience patience;
  std::list<KeptWrite> writes;
  for (int number = 0; number < 40; ++number) {
    KeptWrite& write =
        writes.emplace_back(operatingSystem(), patience, folder_ / std::to_string(number));
    EXPECT_FALSE(write.isThere());
    EXPECT_FALSE(write.open()) << number;
    EXPECT_TRUE(write.isThere());
  }
  EXPECT_TRUE(pathExists(operatingSystem().privateFolder()));
  writes.clear();
  EXPECT_EQ(folder_.listing(), "");
}

TEST_F(KeptWriteTest, AreNoneOfFilesInNoFolder) {
  Patience patience;
  KeptWrite write(operatingSystem(), patience, folder_ / "missing" / "f");
  EXPECT_EQ(write.open().obstacle, Obstacle::Denied);
  EXPECT_FALSE(write.isThere());
  EXPECT_EQ(folder_.listing(), "");
}

TEST_F(KeptWriteTest, StayUntilTheyAreDiscarded) {
  const Path path = folder_ / "f";
  Patience patience;
  {
    KeptWrite write(operatingSystem(), patience, path);
    ASSERT_FALSE(write.open());
    EXPECT_FALSE(write.found().has_value());
    EXPECT_FALSE(write.write("old", "new"));
  }
  KeptWrite write(operatingSystem(), patience, path);
  EXPECT_TRUE(write.isThere());
  ASSERT_FALSE(write.open());
  ASSERT_TRUE(write.found().has_value());
  EXPECT_EQ(write.found()->old, "old");
  EXPECT_EQ(write.found()->bytes, "new");
  EXPECT_FALSE(write.discard());
  EXPECT_FALSE(write.isThere());
  EXPECT_EQ(folder_.listing(), "");
}

}  // namespace
}  // namespace brennet::platform
