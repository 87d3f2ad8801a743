#include "tests/host/HostFixture.h"
#include "tests/support/ScopedFileLimit_posix.h"

namespace brennet {
namespace {

using namespace test;

using FullDiskTest = HostFixture;

// A limit on the size of files stands in for a full disk: the write stops halfway. Nothing here
// catches the signal with which the system would end the host.
using FullDisk = ScopedFileLimit;

TEST_F(FullDiskTest, KeepsTheOldFileWhole) {
  const std::string before = readBytes(settings_);
  {
    const FullDisk disk(100);
    EXPECT_FALSE(brennet_.SetEnabled(false, 5));
  }
  EXPECT_EQ(readBytes(settings_), before);
  EXPECT_EQ(folder_.listing(), "Documents\nKeyInfo.xml\n") << "no temporary file is left";
  EXPECT_TRUE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U);
  EXPECT_EQ(filled().flags, 0x80000000U);
}

}  // namespace
}  // namespace brennet
