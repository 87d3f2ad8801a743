// What others do between two calls of ours.

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "platform/FileSystem.h"
#include "tests/platform/FileFaultsFixture.h"
#include "tests/platform/FileFaults_posix.h"

namespace brennet::platform {
namespace {

using test::writeBytes;

class AFileToBeKept : public test::FileFaultsFixture {
 protected:
  // Opens it, while `happens` comes between the opening and the look at what was opened.
  Obstacle opened(std::function<void()> happens) {
    test::beforeStatus = std::move(happens);
    FileHandle file = kNoFile;
    FileFacts facts;
    const FileError error = operatingSystem().open(path(), OpenFor::Keeping, file, facts);
    if (!error) static_cast<void>(operatingSystem().close(file));
    return error.obstacle;
  }
};

// Who keeps a file removes it before it lets go; what was opened then is nobody's any more.
TEST_F(AFileToBeKept, IsTheOneUnderItsName) {
  EXPECT_EQ(opened([] {}), Obstacle::None);
  EXPECT_EQ(opened([&] { std::filesystem::remove(path()); }), Obstacle::Held);
  EXPECT_EQ(opened([&] {
              writeBytes(folder_ / "another", "");
              std::filesystem::rename(folder_ / "another", path());
            }),
            Obstacle::Held);
  EXPECT_EQ(opened([] {}), Obstacle::None);
}

}  // namespace
}  // namespace brennet::platform
