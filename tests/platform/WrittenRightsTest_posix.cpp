#include <sys/stat.h>

#include <initializer_list>

#include "platform/Files.h"
#include "tests/platform/FileFaultsFixture.h"

namespace brennet::test {

// The rights that files had when they were written to, all of them together.
extern mode_t writtenModes;

}  // namespace brennet::test

namespace brennet::platform {
namespace {

using test::faults;
using test::readBytes;
using test::writeBytes;
using test::writtenModes;

using WrittenRightsTest = test::FileFaultsFixture;

// Until it gets the rights of the old file, whatever those are.
TEST_F(WrittenRightsTest, IsWrittenForItsOwnerAlone) {
  for (const mode_t mode : {0600U, 0644U, 0666U}) {
    writeBytes(path(), "old");
    ASSERT_EQ(chmod(path().c_str(), mode), 0);
    writtenModes = 0;
    EXPECT_FALSE(replaceFile(path(), "new"));
    EXPECT_EQ(writtenModes, 0600U) << std::oct << mode;
  }
}

TEST_F(WrittenRightsTest, IsKeptForItsOwnerAloneWhileItIsWrittenInPlace) {
  writeBytes(path(), "old");
  ASSERT_EQ(chmod(path().c_str(), 0600), 0);
  faults.newFiles = true;
  writtenModes = 0;
  EXPECT_FALSE(replaceFile(path(), "new"));
  EXPECT_EQ(writtenModes, 0600U);
  EXPECT_EQ(readBytes(path()), "new");
}

}  // namespace
}  // namespace brennet::platform
