#include "tests/support/World.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

extern char** environ;

namespace brennet::test {
namespace {

// The same as in world.sh.
constexpr std::string_view kKept[] = {
    "PATH",         "LD_LIBRARY_PATH", "BRENNET_UPDATE_GOLDEN",
    "ASAN_OPTIONS", "LSAN_OPTIONS",    "UBSAN_OPTIONS",
};
constexpr std::string_view kKeptBeginnings[] = {"BRENNET_TEST_", "GTEST_"};

bool isKept(std::string_view name) {
  return std::find(std::begin(kKept), std::end(kKept), name) != std::end(kKept) ||
         std::any_of(std::begin(kKeptBeginnings), std::end(kKeptBeginnings),
                     [&](std::string_view beginning) { return name.starts_with(beginning); });
}

// A folder for the temporary files of this process and its children. It is as open to other users
// as the system's own, because tests become other users.
class OwnFolder {
 public:
  explicit OwnFolder(std::string parent) : path_(std::move(parent) + "/brennet-tests-XXXXXX") {
    constexpr mode_t kOfAll = 01777;
    if (mkdtemp(path_.data()) == nullptr || chmod(path_.c_str(), kOfAll) != 0) {
      throw std::runtime_error("no folder " + path_);
    }
  }
  ~OwnFolder() {
    if (getpid() != owner_) return;
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;

  [[nodiscard]] const char* path() const { return path_.c_str(); }

 private:
  pid_t owner_ = getpid();
  std::string path_;
};

}  // namespace

void leaveTheCallersWorld() {
  std::vector<std::string> gone;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view text = *entry;
    const std::string_view name = text.substr(0, text.find('='));
    if (!isKept(name)) gone.emplace_back(name);
  }
  for (const std::string& name : gone) unsetenv(name.c_str());
  setenv("HOME", "/nonexistent", 1);
  setenv("LC_ALL", "C.UTF-8", 1);
  setenv("TZ", "UTC0", 1);
  const char* const parent = std::getenv("BRENNET_TEST_TMPDIR");
  static std::list<OwnFolder> folders;  // until the process ends
  setenv("TMPDIR", folders.emplace_back(parent != nullptr ? parent : "/tmp").path(), 1);
}

}  // namespace brennet::test
