#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <memory>
#include <string_view>

#include "platform/Leftovers.h"
#include "platform/TemporaryNames.h"

namespace brennet::platform {
namespace {

constexpr std::time_t kOld = 3600;  // seconds

struct Close {
  void operator()(DIR* folder) const { closedir(folder); }
};

bool isOldFile(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         std::time(nullptr) - status.st_mtime >= kOld;
}

}  // namespace

// Not by std::filesystem: its functions that report errors without exceptions end the process when
// memory runs out.
void removeLeftovers(const Path& path) {
  const Path folder = path.has_parent_path() ? path.parent_path() : Path(".");
  const std::string file = path.filename().native();
  const std::unique_ptr<DIR, Close> entries(opendir(folder.c_str()));
  if (entries == nullptr) return;
  while (const dirent* const entry = readdir(entries.get())) {
    const std::string_view name = entry->d_name;
    if (!name.starts_with(file) || !isTemporaryEnding(name.substr(file.size()))) continue;
    const std::string leftover = (folder / entry->d_name).native();
    if (isOldFile(leftover)) unlink(leftover.c_str());
  }
}

}  // namespace brennet::platform
