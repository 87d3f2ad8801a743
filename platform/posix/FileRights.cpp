#include "platform/posix/FileRights.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>

namespace brennet::platform {
namespace {

// The attribute in which Linux keeps the access list of a file.
constexpr char kAccessList[] = "system.posix_acl_access";

// The attributes that a player or his system has given the file. What the kernel derives from the
// content is not copied.
constexpr std::array<std::string_view, 2> kKeptAttributes = {"user.", "security.selinux"};

// The value of an attribute of the file at `path`. Returns whether it has one that could be read.
bool readAttribute(const Path& path, const char* name, std::string& value) {
  const ssize_t size = lgetxattr(path.c_str(), name, nullptr, 0);
  if (size < 0) return false;
  value.resize(static_cast<std::size_t>(size));
  return lgetxattr(path.c_str(), name, value.data(), value.size()) == size;
}

void copyAttributes(const Path& path, int file) {
  const ssize_t size = llistxattr(path.c_str(), nullptr, 0);
  if (size <= 0) return;
  std::string names(static_cast<std::size_t>(size), '\0');
  if (llistxattr(path.c_str(), names.data(), names.size()) != size) return;
  std::string value;
  for (const char* name = names.data(); name < names.data() + size; name += std::strlen(name) + 1) {
    const auto isPart = [&](std::string_view start) {
      return std::string_view(name).starts_with(start);
    };
    if (!isPart(kKeptAttributes[0]) && !isPart(kKeptAttributes[1])) continue;
    if (readAttribute(path, name, value)) fsetxattr(file, name, value.data(), value.size(), 0);
  }
}

// Whether the file has no access list any more; its folder may have given it one when it was made.
bool dropAccessList(int file) {
  return fremovexattr(file, kAccessList) == 0 || errno == ENODATA || errno == EOPNOTSUPP;
}

// Whether the file now has the access list of the old one, or none if that has none.
bool copyAccessList(const Path& path, int file) {
  std::string list;
  if (readAttribute(path, kAccessList, list)) {
    return fsetxattr(file, kAccessList, list.data(), list.size(), 0) == 0;
  }
  const bool hasNone = errno == ENODATA || errno == EOPNOTSUPP;
  return hasNone && dropAccessList(file);
}

bool hasAccessList(const Path& path) {
  return lgetxattr(path.c_str(), kAccessList, nullptr, 0) > 0;
}

// The rights of one class of users in a mode.
mode_t owners(mode_t mode) {
  return (mode >> 6U) & 7U;
}
mode_t groups(mode_t mode) {
  return (mode >> 3U) & 7U;
}
mode_t others(mode_t mode) {
  return mode & 7U;
}

// Whether the old owner, who now counts as one of the group or of the others, gains no rights by
// that.
bool hadAllRights(mode_t mode) {
  return ((groups(mode) | others(mode)) & ~owners(mode)) == 0;
}

}  // namespace

mode_t narrowedMode(mode_t mode, bool hasOwner, bool hasGroup) {
  const mode_t all = hasOwner ? 7U : owners(mode);
  const mode_t group = hasGroup ? groups(mode) & all : 0;
  const mode_t other = others(mode) & all & (hasGroup ? 7U : groups(mode));
  return (owners(mode) << 6U) | (group << 3U) | other;
}

void copyFileRights(const Path& path, int file) {
  struct stat old {};
  struct stat made {};
  if (lstat(path.c_str(), &old) != 0 || !S_ISREG(old.st_mode) || fstat(file, &made) != 0) return;
  constexpr auto kSameUser = static_cast<uid_t>(-1);
  constexpr auto kSameGroup = static_cast<gid_t>(-1);
  // The group first: it may be possible to set that where the owner cannot be set, but not once the
  // owner has changed.
  const bool hasGroup = made.st_gid == old.st_gid || fchown(file, kSameUser, old.st_gid) == 0;
  const bool hasOwner = made.st_uid == old.st_uid || fchown(file, old.st_uid, kSameGroup) == 0;
  copyAttributes(path, file);
  const mode_t mode = old.st_mode & 0777U;
  if (hasGroup && (hasOwner || hadAllRights(mode))) {
    // If the list cannot be set, the file stays private to its owner.
    if (copyAccessList(path, file)) static_cast<void>(fchmod(file, mode));
  } else if (!hasAccessList(path) && dropAccessList(file)) {
    static_cast<void>(fchmod(file, narrowedMode(mode, hasOwner, hasGroup)));
  }
}

}  // namespace brennet::platform
