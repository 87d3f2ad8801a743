// Owner, group, access list and attributes of a file that is replaced.

#include "platform/posix/FileRights.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string>

#include "platform/Files.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

struct ModeRow {
  mode_t mode;
  bool hasOwner;
  bool hasGroup;
  mode_t narrowed;
};

constexpr ModeRow kModes[] = {
    {0664, true, true, 0664},
    // The old group's members count as others, who may not have more than they had.
    {0664, true, false, 0604},
    {0660, true, false, 0600},
    {0604, true, false, 0600},
    {0646, true, false, 0604},
    {0777, true, false, 0707},
    // The old owner counts as one of the group, or of the others.
    {0664, false, true, 0664},
    {0466, false, true, 0444},
    {0077, false, true, 0000},
    {0664, false, false, 0604},
    {0207, false, false, 0200},
};

TEST(FileRightsNarrowedMode, GivesNobodyMoreThanHeHad) {
  for (const ModeRow& row : kModes) {
    EXPECT_EQ(narrowedMode(row.mode, row.hasOwner, row.hasGroup), row.narrowed)
        << std::oct << row.mode << ' ' << row.hasOwner << row.hasGroup;
  }
}

struct stat statusOf(const Path& path) {
  struct stat status {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status;
}

std::string attribute(const Path& path, const char* name) {
  std::array<char, 256> value{};
  const ssize_t size = lgetxattr(path.c_str(), name, value.data(), value.size());
  return size < 0 ? "(none)" : std::string(value.data(), static_cast<std::size_t>(size));
}

TEST(FileRightsReplaceFile, KeepsAttributes) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  // A file system without attributes keeps none.
  static_cast<void>(setxattr((folder / "f").c_str(), "user.note", "mine", 4, 0));
  const std::string before = attribute(folder / "f", "user.note");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(attribute(folder / "f", "user.note"), before);
}

constexpr char kAccessList[] = "system.posix_acl_access";
constexpr char kDefaultList[] = "system.posix_acl_default";

// An access list as Linux keeps it: the owner reads and writes, others may do nothing; one more
// user (reading and writing) and the group (`groupRights`) may as far as the mask allows.
std::string listWith(std::uint32_t user, std::uint16_t groupRights, std::uint16_t mask) {
  struct Entry {
    std::uint16_t tag;
    std::uint16_t rights;
    std::uint32_t id;
  };
  constexpr std::uint32_t kVersion = 2;
  constexpr std::uint32_t kNobodyNamed = ~0U;
  const std::array<Entry, 5> entries = {{{1, 6, kNobodyNamed},
                                         {2, 6, user},
                                         {4, groupRights, kNobodyNamed},
                                         {16, mask, kNobodyNamed},
                                         {32, 0, kNobodyNamed}}};
  std::string list(sizeof(kVersion) + sizeof(entries), '\0');
  std::memcpy(list.data(), &kVersion, sizeof(kVersion));
  std::memcpy(list.data() + sizeof(kVersion), entries.data(), sizeof(entries));
  return list;
}

TEST(FileRightsReplaceFile, KeepsAnAccessListAndNotOnlyItsMask) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  const std::string list = listWith(4242, 4, 6);
  static_cast<void>(setxattr((folder / "f").c_str(), kAccessList, list.data(), list.size(), 0));
  const std::string before = attribute(folder / "f", kAccessList);
  const mode_t mode = statusOf(folder / "f").st_mode;
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(attribute(folder / "f", kAccessList), before);
  EXPECT_EQ(statusOf(folder / "f").st_mode, mode);
}

// The folder's default list gives new files to one more user; an existing file may not have that
// entry.
TEST(FileRightsReplaceFile, TakesNoAccessListOverFromTheFolder) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(chmod((folder / "f").c_str(), 0660), 0);
  const std::string list = listWith(4242, 6, 6);
  static_cast<void>(setxattr(folder.path().c_str(), kDefaultList, list.data(), list.size(), 0));
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(attribute(folder / "f", kAccessList), "(none)");
  EXPECT_EQ(statusOf(folder / "f").st_mode & 07777U, 0660U);
}

TEST(FileRightsReplaceFile, PutsTheListOfTheFileInThePlaceOfThatOfTheFolder) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  const std::string own = listWith(4242, 4, 6);
  const std::string folders = listWith(4343, 6, 6);
  static_cast<void>(setxattr((folder / "f").c_str(), kAccessList, own.data(), own.size(), 0));
  static_cast<void>(
      setxattr(folder.path().c_str(), kDefaultList, folders.data(), folders.size(), 0));
  const std::string before = attribute(folder / "f", kAccessList);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(attribute(folder / "f", kAccessList), before);
}

TEST(FileRightsCopied, TakesThoseOfFilesOnly) {
  const TempFolder folder;
  writeBytes(folder / "f", "");
  ASSERT_EQ(mkdir((folder / "folder").c_str(), 0755), 0);
  const int file = open((folder / "f").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(fchmod(file, 0600), 0);
  for (const char* const name : {"folder", "missing"}) {
    copyFileRights(folder / name, file);
    EXPECT_EQ(statusOf(folder / "f").st_mode & 07777U, 0600U) << name;
  }
  close(file);
}

TEST(FileRightsReplaceFile, KeepsASecondName) {
  const TempFolder folder;
  writeBytes(folder / "f", "a longer old content");
  ASSERT_EQ(link((folder / "f").c_str(), (folder / "second").c_str()), 0);
  const ino_t before = statusOf(folder / "f").st_ino;
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "second"), "new");
  EXPECT_EQ(statusOf(folder / "f").st_ino, before);
}

constexpr uid_t kOwner = 4241;
constexpr uid_t kMember = 4242;
constexpr gid_t kGroup = 4243;
constexpr gid_t kOtherGroup = 4244;

// As whom the test acts for a moment, which only root can do.
class AMember {
 public:
  explicit AMember(std::initializer_list<gid_t> groups) {
    EXPECT_EQ(setgroups(groups.size(), groups.begin()), 0);
    EXPECT_EQ(setegid(kOtherGroup), 0);
    EXPECT_EQ(seteuid(kMember), 0);
  }
  ~AMember() {
    EXPECT_EQ(seteuid(0), 0);
    EXPECT_EQ(setegid(0), 0);
    EXPECT_EQ(setgroups(0, nullptr), 0);
  }
  AMember(const AMember&) = delete;
  AMember& operator=(const AMember&) = delete;
};

struct SharedRow {
  mode_t mode;
  bool isMember;  // of the file's group
  mode_t modeAfter;
  gid_t groupAfter;
};

// A file of somebody else in a folder where everybody may write.
TEST(FileRightsReplaceFile, LeavesAFileItsGroupWhereAMemberReplacesIt) {
  if (geteuid() != 0) return;
  constexpr SharedRow kRows[] = {
      {0660, true, 0660, kGroup},
      {0460, true, 0440, kGroup},  // the old owner is one of the group now
      {0666, false, 0606, kOtherGroup},
      {0646, false, 0604, kOtherGroup},
  };
  for (const SharedRow& row : kRows) {
    const TempFolder folder;
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    writeBytes(folder / "f", "old");
    ASSERT_EQ(chown((folder / "f").c_str(), kOwner, kGroup), 0);
    ASSERT_EQ(chmod((folder / "f").c_str(), row.mode), 0);
    {
      const AMember member(row.isMember ? std::initializer_list<gid_t>{kGroup}
                                        : std::initializer_list<gid_t>{});
      EXPECT_FALSE(replaceFile(folder / "f", "new"));
    }
    EXPECT_EQ(readBytes(folder / "f"), "new");
    const struct stat after = statusOf(folder / "f");
    EXPECT_EQ(after.st_uid, kMember);
    EXPECT_EQ(after.st_gid, row.groupAfter) << std::oct << row.mode;
    EXPECT_EQ(after.st_mode & 07777U, row.modeAfter) << std::oct << row.mode;
  }
}

TEST(FileRightsReplaceFile, LeavesAFileItsOwnerWhereRootReplacesIt) {
  if (geteuid() != 0) return;
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  ASSERT_EQ(chown((folder / "f").c_str(), kOwner, kGroup), 0);
  ASSERT_EQ(chmod((folder / "f").c_str(), 0640), 0);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  const struct stat after = statusOf(folder / "f");
  EXPECT_EQ(after.st_uid, kOwner);
  EXPECT_EQ(after.st_gid, kGroup);
  EXPECT_EQ(after.st_mode & 07777U, 0640U);
}

TEST(FileRightsReplaceFile, GivesANewFileTheRightsOfNewFiles) {
  const TempFolder folder;
  const mode_t before = umask(026);
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  umask(before);
  EXPECT_EQ(statusOf(folder / "f").st_mode & 07777U, 0640U);
}

}  // namespace
}  // namespace brennet::platform
