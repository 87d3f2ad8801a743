// Memory runs out at any moment of a save; then nothing has changed.

#include <gtest/gtest.h>

#include <new>
#include <string>

#include "platform/Files.h"
#include "tests/host/FailingNew.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::FailingAllocation;
using test::readBytes;
using test::writeBytes;

constexpr char kOld[] = "the old content";
constexpr char kNew[] = "the new content";

class FilesOutOfMemory : public testing::Test {
 protected:
  // Saves with each allocation failing in turn.
  void check(const Path& path, bool isThere, OldContent old) {
    bool hasFailed = true;
    for (long number = 0; hasFailed; ++number) {
      std::filesystem::remove(path);
      if (isThere) writeBytes(path, kOld);
      const std::string before = folder_.listing();
      bool hasThrown = false;
      std::error_code error;
      {
        const FailingAllocation failing(number, test::Lasts::Once);
        try {
          error = replaceFile(path, kNew, old);
        } catch (const std::bad_alloc&) {
          hasThrown = true;
        }
        hasFailed = failing.hasFailed();
      }
      EXPECT_FALSE(error) << number << ": " << error.message();
      const std::string expected = !hasThrown ? kNew : isThere ? kOld : "";
      EXPECT_EQ(readBytes(path), expected) << number;
      std::string read;
      EXPECT_EQ(isMissing(readFile(path, read, kAnySize)), hasThrown && !isThere) << number;
      EXPECT_EQ(read, expected) << number;
      EXPECT_TRUE(!hasThrown || folder_.listing() == before) << number << folder_.listing();
      for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
        std::filesystem::remove(entry);
      }
    }
  }

  test::TempFolder folder_;
};

TEST_F(FilesOutOfMemory, AreAsTheyWereThroughATemporaryFile) {
  check(folder_ / "f", true, OldContent::Drop);
  check(folder_ / "f", true, OldContent::Keep);
  check(folder_ / "f", false, OldContent::Drop);
}

// The name leaves no room for the ending of a temporary one.
TEST_F(FilesOutOfMemory, AreAsTheyWereInPlace) {
  Path path = folder_ / std::string(250, 'n');
  // Windows accepts long paths that begin like this.
  if (Path::preferred_separator != '/') path = R"(\\?\)" + path.string();
  check(path, true, OldContent::Drop);
  check(path, false, OldContent::Drop);
}

}  // namespace
}  // namespace brennet::platform
