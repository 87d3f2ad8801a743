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

  TempFolder folder_;
};

}  // namespace brennet::test
