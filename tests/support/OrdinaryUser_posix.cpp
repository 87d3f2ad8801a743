#include "tests/support/OrdinaryUser_posix.h"

#include <unistd.h>

#include <cstdlib>

namespace brennet::test {
namespace {

constexpr uid_t kNobody = 65534;

void give(const std::filesystem::path& path) {
  if (geteuid() == 0 && lchown(path.c_str(), kNobody, kNobody) != 0) std::abort();
}

}  // namespace

OrdinaryUser::OrdinaryUser() {
  if (geteuid() == 0 && seteuid(kNobody) != 0) std::abort();
}

OrdinaryUser::OrdinaryUser(const std::filesystem::path& folder) {
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    give(entry.path());
  }
  give(folder);
  if (geteuid() == 0 && seteuid(kNobody) != 0) std::abort();
}

OrdinaryUser::~OrdinaryUser() {
  if (getuid() == 0 && seteuid(0) != 0) std::abort();
}

}  // namespace brennet::test
