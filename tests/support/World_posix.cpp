#include "tests/support/World.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

extern char** environ;

namespace brennet::test {
namespace {

// As in world.sh.
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
  if (const char* const folder = std::getenv("BRENNET_TEST_TMPDIR")) setenv("TMPDIR", folder, 1);
}

}  // namespace brennet::test
