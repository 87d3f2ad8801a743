#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/PrivateFile.h"
#include "tests/support/ScopedRegistry.h"

namespace brennet::platform {
namespace {

TEST(PrivateFileFolder, IsTheOwnersAlone) {
  const test::ScopedRegistry registry;
  PrivateFile file;
  ASSERT_TRUE(file.take("brennet-test.undo"));
  struct stat status {};
  ASSERT_EQ(stat(fileSystem().privateFolder().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST(PrivateFileFolder, IsRefusedWhereOthersMayEnterIt) {
  const test::ScopedRegistry registry;
  const Path folder = fileSystem().privateFolder();
  ASSERT_EQ(mkdir(folder.c_str(), 0700), 0);
  ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
  PrivateFile file;
  EXPECT_FALSE(file.take("brennet-test.undo"));
  test::writeBytes(folder / "brennet-test.undo", "planted");
  EXPECT_FALSE(file.isThere("brennet-test.undo"));
}

}  // namespace
}  // namespace brennet::platform
