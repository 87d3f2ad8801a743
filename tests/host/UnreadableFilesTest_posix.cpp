// Files that cannot be read for now, and memory for which that cannot be found out.

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/host/HostFixture.h"
#include "tests/support/OrdinaryUser_posix.h"

namespace brennet {
namespace {

using namespace test;

using UnreadableFiles = HostFixture;

TEST_F(UnreadableFiles, OfTheGameStayAsTheyAre) {
  const OrdinaryUser user(folder_.path());
  writeBytes(preferences_, "[Mine]\r\nkept=1\r\n\r\n");
  ASSERT_EQ(chmod(preferences_.c_str(), 0222), 0);
  EXPECT_TRUE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_TRUE(brennet_.SetEnabled(false, 5));
  ASSERT_EQ(chmod(preferences_.c_str(), 0644), 0);
  EXPECT_EQ(readBytes(preferences_), "[Mine]\r\nkept=1\r\n\r\n");
}

TEST_F(UnreadableFiles, OfSettingsArePutAsideWhereTheyCannotBeCopied) {
  const OrdinaryUser user(folder_.path());
  const std::string before = readBytes(settings_);
  ASSERT_EQ(chmod(settings_.c_str(), 0200), 0);
  EXPECT_FALSE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_TRUE(brennet_.SetEnabled(true, 5) || brennet_.SetEnabled(false, 5));
  struct stat status {};
  ASSERT_EQ(stat(settings_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0200U) << "the new file is as private as the old";
  const std::string listing = folder_.listing();
  const std::size_t name = listing.find("KeyInfo.xml.kept-");
  ASSERT_NE(name, std::string::npos);
  const std::filesystem::path kept =
      folder_ / listing.substr(name, listing.find('\n', name) - name);
  ASSERT_EQ(chmod(kept.c_str(), 0600), 0);
  EXPECT_EQ(readBytes(kept), before);
}

// Finding out whether memory is writable takes a pipe.
TEST_F(UnreadableFiles, LeaveARecordUnknownAsLongAsThereAreNoDescriptors) {
  HotkeyBlock block = filled();
  block.flags ^= 1U;
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit none{0, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
  const std::int32_t applied = brennet_.ApplyHotkeyBlock(&block, 5);
  HotkeyBlock other = block;
  const bool isFilled = brennet_.FillHotkeyBlock(&other);
  const std::int32_t nothing = brennet_.ApplyHotkeyBlock(nullptr, 5);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_EQ(applied, -1);
  EXPECT_FALSE(isFilled);
  EXPECT_EQ(nothing, 0);
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), 0);
  EXPECT_TRUE(brennet_.FillHotkeyBlock(&other));
}

}  // namespace
}  // namespace brennet
