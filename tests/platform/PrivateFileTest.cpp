#include "platform/PrivateFile.h"

#include <gtest/gtest.h>

#include "platform/Files.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::writeBytes;

constexpr std::string_view kName = "brennet-test.undo";
constexpr std::string_view kOther = "brennet-test-2.undo";
constexpr std::uint64_t kLimit = 100;

// Uses a folder of the test's own where the system offers the choice.
class PrivateFileTest : public testing::Test {
 protected:
  ~PrivateFileTest() override {
    for (const std::string_view name : {kName, kOther}) {
      PrivateFile file;
      if (file.take(name)) static_cast<void>(file.clear());
    }
  }

  static Path pathOf(std::string_view name, std::string_view ending = {}) {
    return fileSystem().privateFolder() / std::string(name).append(ending);
  }
  static std::string contentOf(const PrivateFile& file) {
    std::string bytes;
    const std::error_code error = file.read(bytes, kLimit);
    return error ? isMissing(error) ? "(none)" : "(error)" : bytes;
  }

  test::ScopedRegistry registry;
};

TEST_F(PrivateFileTest, IsThereFromItsTakingToItsClearing) {
  PrivateFile file;
  EXPECT_FALSE(file.isThere(kName));
  EXPECT_FALSE(file.isTaken());
  ASSERT_TRUE(file.take(kName));
  EXPECT_TRUE(file.isTaken());
  EXPECT_TRUE(file.isThere(kName));
  EXPECT_FALSE(file.isThere(kOther));
  EXPECT_EQ(contentOf(file), "(none)");
  EXPECT_FALSE(file.write("one"));
  EXPECT_FALSE(file.write("two"));
  EXPECT_EQ(contentOf(file), "two");
  EXPECT_TRUE(file.clear());
  EXPECT_EQ(contentOf(file), "(none)");
  EXPECT_TRUE(file.clear()) << "what is clear stays clear";
  file.release();
  EXPECT_FALSE(file.isTaken());
  EXPECT_FALSE(file.isThere(kName));
  EXPECT_FALSE(pathExists(pathOf(kName, ".lock")));
}

TEST_F(PrivateFileTest, OutlivesWhoeverHadIt) {
  {
    PrivateFile file;
    ASSERT_TRUE(file.take(kName));
    EXPECT_FALSE(file.write("one"));
  }
  PrivateFile next;
  EXPECT_TRUE(next.isThere(kName));
  ASSERT_TRUE(next.take(kName));
  EXPECT_EQ(contentOf(next), "one");
}

TEST_F(PrivateFileTest, BelongsToOneAtATime) {
  PrivateFile file;
  PrivateFile other;
  ASSERT_TRUE(file.take(kName));
  EXPECT_FALSE(other.take(kName));
  EXPECT_FALSE(other.isTaken());
  EXPECT_TRUE(other.take(kOther)) << "another name is another file";
  other.release();
  file.release();
  EXPECT_TRUE(other.take(kName));
}

TEST_F(PrivateFileTest, IsReadUpToALimit) {
  PrivateFile file;
  ASSERT_TRUE(file.take(kName));
  EXPECT_FALSE(file.write(std::string(kLimit, 'x')));
  EXPECT_EQ(contentOf(file), std::string(kLimit, 'x'));
  EXPECT_FALSE(file.write(std::string(kLimit + 1, 'x')));
  EXPECT_EQ(contentOf(file), "(error)");
}

TEST_F(PrivateFileTest, ClearsWhatAReplacementLeftHalfWay) {
  PrivateFile file;
  ASSERT_TRUE(file.take(kName));
  writeBytes(pathOf(kName, ".brennet-old"), "old");
  EXPECT_TRUE(file.clear());
  EXPECT_EQ(contentOf(file), "(none)") << "it would come back otherwise";
  file.release();
  EXPECT_FALSE(file.isThere(kName));
}

TEST_F(PrivateFileTest, TakesWithItWhatAKilledProcessLeft) {
  {
    PrivateFile file;
    ASSERT_TRUE(file.take(kName));
    writeBytes(pathOf(kName, ".brennet-0-0.tmp"), "half");
  }
  EXPECT_FALSE(pathExists(pathOf(kName, ".brennet-0-0.tmp")));
}

}  // namespace
}  // namespace brennet::platform
