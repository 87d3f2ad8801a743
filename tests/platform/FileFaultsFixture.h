#pragma once

#include <gtest/gtest.h>

#include "tests/platform/FileFaults.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {

// A folder for one file, "f", and a system that works again when the test ends.
class FileFaultsFixture : public testing::Test {
 protected:
  ~FileFaultsFixture() override { faults = FileFaults(); }

  [[nodiscard]] std::filesystem::path path() const { return folder_ / "f"; }

  // A file whose name leaves no room for the ending of a temporary name.
  [[nodiscard]] std::filesystem::path longPath() const {
    constexpr std::size_t kLongest = 255;
    const std::filesystem::path path = folder_ / std::string(kLongest - 3, 'n');
    // Windows accepts long paths that begin like this.
    const bool isWindows = std::filesystem::path::preferred_separator != '/';
    return isWindows ? std::filesystem::path(R"(\\?\)" + path.string()) : path;
  }

  TempFolder folder_;
};

}  // namespace brennet::test
