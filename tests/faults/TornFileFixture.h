#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/Files.h"
#include "platform/KeptWrite.h"
#include "tests/faults/StandIn.h"

namespace brennet::test {

// A file in a file system in memory, which a process may leave torn.
class TornFileFixture : public testing::Test {
 protected:
  static constexpr char kFolder[] = "/folder";
  static constexpr char kFile[] = "/folder/f";
  static constexpr char kSecond[] = "/folder/second";
  static constexpr char kAway[] = "/folder/away";
  static constexpr char kOld[] = "the old content";
  static constexpr char kNew[] = "THE NEW CONTENT";
  static constexpr char kTorn[] = "THE NEW content";

  TornFileFixture() {
    in_.model.makeFolder(kFolder);
    in_.model.makeFile(kFile, kOld);
    in_.faulty.plan(-1, Fault::None);
  }

  std::string read(const Path& path) {
    std::string bytes;
    error_ = platform::readFile(path, bytes, platform::kAnySize);
    EXPECT_TRUE(!error_ || bytes.empty());
    return bytes;
  }

  // Leaves what a process leaves that ends while it writes the file in place, which held `old`.
  // Does nothing if others have the file.
  void tear(const Path& path, const std::string& old = kOld) {
    platform::Patience patience;
    platform::KeptWrite kept(in_.model, patience, path);
    platform::OpenFile file(in_.model);
    if (kept.open() || file.open(path, OpenFor::Writing) || file.lock(Sharing::Alone)) return;
    EXPECT_FALSE(kept.write(old, kNew));
    EXPECT_FALSE(file.writeAll("THE NEW"));
  }

  void write(const Path& path, std::string_view bytes) {
    platform::OpenFile file(in_.model);
    EXPECT_FALSE(file.open(path, OpenFor::Writing));
    EXPECT_FALSE(file.writeAll(bytes));
  }

  // All processes end, and nothing fails any more.
  void beginSession() {
    in_.model.endPrograms();
    in_.model.others = {};
    in_.faulty.plan(-1, Fault::None);
  }

  StandIn in_;
  std::error_code error_;
};

}  // namespace brennet::test
