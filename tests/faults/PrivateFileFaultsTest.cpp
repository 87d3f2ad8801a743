// A file of the user's own is cleared, while any call fails or is the last one.

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

#include "platform/Files.h"
#include "platform/PrivateFile.h"
#include "tests/faults/StandIn.h"

namespace brennet::test {
namespace {

using platform::PrivateFile;

constexpr char kName[] = "file";
constexpr char kNone[] = "(none)";

// What is there before: the file itself, and the old content under the name that it has while it is
// replaced, as a replacement that failed half-way leaves it.
struct Content {
  const char* name;
  const char* file;
  const char* backup;

  // What the next process reads if it was not cleared.
  [[nodiscard]] std::string whole() const { return file != nullptr ? file : backup; }
  friend void PrintTo(const Content& content, std::ostream* out) { *out << content.name; }
};

class PrivateFileFaultsTest : public testing::TestWithParam<Content> {
 protected:
  void begin() {
    file_.reset();
    in_.reset();
    in_.emplace();
    file_.emplace();
    EXPECT_TRUE(file_->take(kName));
    const Path path = in_->model.privateFolder() / kName;
    if (GetParam().file != nullptr) in_->model.makeFile(path, GetParam().file);
    Path backup = path;
    backup += ".brennet-old";
    if (GetParam().backup != nullptr) in_->model.makeFile(backup, GetParam().backup);
    in_->faulty.plan(-1, Fault::None);
  }

  // What the next process reads.
  std::string next() {
    in_->model.endPrograms();
    in_->faulty.plan(-1, Fault::None);
    PrivateFile file;
    EXPECT_TRUE(file.take(kName));
    std::string bytes;
    const std::error_code error = file.read(bytes, platform::kAnySize);
    const std::string found = error ? kNone : bytes;
    EXPECT_TRUE(file.clear());
    file.release();
    EXPECT_EQ(in_->model.listing("/private"), "");
    return found.empty() ? kNone : found;
  }

  int countCalls() {
    begin();
    EXPECT_TRUE(file_->clear());
    file_->release();
    const int calls = in_->faulty.calls();
    EXPECT_EQ(in_->model.listing("/private"), "");
    return calls;
  }

  std::optional<StandIn> in_;
  std::optional<PrivateFile> file_;
};

TEST_P(PrivateFileFaultsTest, ThatEndTheProcessLeaveAllOrNothing) {
  const int calls = countCalls();
  for (const Fault fault : {Fault::EndsBefore, Fault::EndsAfter}) {
    for (int call = 0; call < calls; ++call) {
      begin();
      in_->faulty.plan(call, fault);
      static_cast<void>(file_->clear());
      file_.reset();
      const std::string found = next();
      EXPECT_TRUE(found == kNone || found == GetParam().whole()) << found << described(*in_, call);
    }
  }
}

TEST_P(PrivateFileFaultsTest, LeaveWhatTheResultSays) {
  const int calls = countCalls();
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood}) {
    for (int call = 0; call < calls; ++call) {
      begin();
      in_->faulty.plan(call, fault);
      const bool isClear = file_->clear();
      file_.reset();
      const std::string found = next();
      EXPECT_TRUE(found == kNone || (!isClear && found == GetParam().whole()))
          << found << described(*in_, call);
      // There are two ways to clear a file, so one failure does not keep it.
      if (fault == Fault::Fails && GetParam().backup == nullptr) {
        EXPECT_TRUE(isClear) << described(*in_, call);
      }
    }
  }
}

const Content kContents[] = {
    {"TheFile", "new", nullptr}, {"Both", "new", "old"}, {"TheOtherName", nullptr, "old"}};

INSTANTIATE_TEST_SUITE_P(, PrivateFileFaultsTest, testing::ValuesIn(kContents),
                         [](const auto& content) { return std::string(content.param.name); });

}  // namespace
}  // namespace brennet::test
