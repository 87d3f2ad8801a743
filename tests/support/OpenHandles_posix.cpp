#include <filesystem>
#include <iterator>

#include "tests/support/OpenHandles.h"

namespace brennet::test {

std::size_t openHandles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

}  // namespace brennet::test
