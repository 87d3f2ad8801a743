// How long one operation waits for others, in all its steps together.

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/Files.h"
#include "platform/Patience.h"
#include "platform/PrivateFile.h"
#include "tests/faults/StandIn.h"

namespace brennet::test {
namespace {

using platform::kAnySize;
using platform::OldContent;
using platform::Patience;
using platform::readFile;
using platform::replaceFile;

constexpr char kFile[] = "/folder/f";
constexpr char kBackup[] = "/folder/f.brennet-old";
constexpr int kForever = 1000;  // pauses

struct Setting {
  const char* name;
  void (*prepare)(ModelFileSystem& system);
};

const Setting kSettings[] = {
    {"TheFile",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, "old");
       s.nature.busy[kFile] = kForever;
     }},
    {"TheFileFromSomeCallOn",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, "old");
       s.others.beforeOpen = [&s](const Path& path, OpenFor purpose) {
         if (path != kFile && purpose == OpenFor::NewAndPrivate) s.nature.busy[kFile] = kForever;
       };
     }},
    {"TheFileWithTwoNames",
     [](ModelFileSystem& s) {
       s.makeFile(kFile, "old");
       s.makeSecondName(kFile, "/folder/second");
       s.others.beforeOpen = [&s](const Path&, OpenFor purpose) {
         if (purpose == OpenFor::Keeping) s.nature.busy[kFile] = kForever;
       };
     }},
    {"TheBackupAlone", [](ModelFileSystem& s) { s.makeFile(kBackup, "old"); }},
    {"TheBackupAloneAndThenTheFile",
     [](ModelFileSystem& s) {
       s.makeFile(kBackup, "old");
       s.nature.busy[kFile] = kForever;
     }},
};

class WaitingFor : public testing::TestWithParam<Setting> {
 protected:
  void begin() {
    in_.reset();
    in_.emplace();
    in_->model.makeFolder("/folder");
    GetParam().prepare(in_->model);
    in_->faulty.plan(-1, Fault::None);
  }
  int pauses() { return in_->model.pauses; }

  std::optional<StandIn> in_;
};

TEST_P(WaitingFor, AddsUpToOnePatience) {
  std::string bytes;
  begin();
  static_cast<void>(readFile(kFile, bytes, kAnySize));
  EXPECT_LE(pauses(), Patience::kPauses);
  begin();
  static_cast<void>(replaceFile(kFile, "new"));
  EXPECT_LE(pauses(), Patience::kPauses);
  begin();
  static_cast<void>(replaceFile(kFile, "new", OldContent::Keep));
  EXPECT_LE(pauses(), Patience::kPauses);
}

TEST_P(WaitingFor, AddsUpOverOperationsThatShareOne) {
  begin();
  Patience patience;
  std::string bytes;
  static_cast<void>(readFile(kFile, bytes, kAnySize, patience));
  static_cast<void>(replaceFile(kFile, "new", OldContent::Drop, patience));
  EXPECT_LE(pauses(), Patience::kPauses);
}

TEST_P(WaitingFor, TakesNoLongerWherePausesDo) {
  for (const std::uint64_t length : {10U, 20U, 31U, 100U}) {
    begin();
    in_->model.pauseLength = length;
    static_cast<void>(replaceFile(kFile, "new"));
    EXPECT_GE(pauses(), 2) << length;
    EXPECT_LE(in_->model.clock(), Patience::kMilliseconds) << length;
  }
}

INSTANTIATE_TEST_SUITE_P(, WaitingFor, testing::ValuesIn(kSettings),
                         [](const auto& setting) { return std::string(setting.param.name); });

TEST(Waiting, IsNotDoneForAPrivateFileThatSomebodyHas) {
  StandIn in;
  platform::PrivateFile file;
  platform::PrivateFile other;
  ASSERT_TRUE(file.take("file"));
  EXPECT_FALSE(other.take("file"));
  EXPECT_EQ(in.model.pauses, 0);
}

}  // namespace
}  // namespace brennet::test
