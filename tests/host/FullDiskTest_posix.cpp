#include <sys/resource.h>

#include "tests/host/HostFixture.h"

namespace brennet {
namespace {

using namespace test;

using FullDiskTest = HostFixture;

// A limit on the size of files stands for a full disk: the write stops half-way. The host does
// nothing about the signal with which the system would end it.
class FullDisk {
 public:
  explicit FullDisk(rlim_t room) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{room, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

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
