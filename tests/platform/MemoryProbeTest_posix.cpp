#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "platform/MemoryProbe.h"

namespace brennet::platform {
namespace {

// While it exists, no more files can be opened.
class NoMoreFiles {
 public:
  NoMoreFiles() {
    EXPECT_EQ(getrlimit(RLIMIT_NOFILE, &before_), 0);
    const int next = dup(0);
    close(next);
    const rlimit limit{static_cast<rlim_t>(next), before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
  }
  ~NoMoreFiles() { EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &before_), 0); }
  NoMoreFiles(const NoMoreFiles&) = delete;
  NoMoreFiles& operator=(const NoMoreFiles&) = delete;

 private:
  rlimit before_{};
};

TEST(MemoryProbe, DoesNotKnowWhileThereAreNoFilesAndKnowsAgain) {
  char byte = 'a';
  {
    const NoMoreFiles none;
    EXPECT_EQ(probeMemory(&byte, 1), Writability::Unknown);
    EXPECT_EQ(probeMemory(nullptr, 1), Writability::NotWritable);
  }
  EXPECT_EQ(probeMemory(&byte, 1), Writability::Writable);
  EXPECT_EQ(byte, 'a');
}

}  // namespace
}  // namespace brennet::platform
