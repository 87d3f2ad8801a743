// Files that are read and written in parts, and that grow meanwhile.

#include "platform/OpenFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/support/PassingFileSystem.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::writeBytes;

// Reports `sizeAtFirst` as the size of a file, as if the rest came later, and moves at most `part`
// bytes at a time.
class InParts : public test::PassingFileSystem {
 public:
  InParts(std::uint64_t sizeAtFirst, std::size_t part) : sizeAtFirst_(sizeAtFirst), part_(part) {}

  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override {
    const FileError error = PassingFileSystem::open(path, purpose, file, facts);
    facts.size = sizeAtFirst_;
    return error;
  }
  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override {
    return PassingFileSystem::read(file, offset, bytes, std::min(size, part_), count);
  }
  FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                  std::size_t& count) override {
    return PassingFileSystem::write(file, offset, bytes.substr(0, part_), count);
  }

 private:
  std::uint64_t sizeAtFirst_;
  std::size_t part_;
};

// Reads only so many times.
class Failing : public test::PassingFileSystem {
 public:
  explicit Failing(int readings) : readings_(readings) {}

  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override {
    if (readings_-- == 0) return {Obstacle::Other, std::make_error_code(std::errc::io_error)};
    return PassingFileSystem::read(file, offset, bytes, std::min(size, std::size_t{7}), count);
  }

 private:
  int readings_;
};

std::string someBytes() {
  std::string bytes;
  for (int i = 0; i < 1000; ++i) bytes.push_back(static_cast<char>(i * 7));
  return bytes;
}

TEST(OpenFile, IsReadToItsEnd) {
  const test::TempFolder folder;
  const std::string content = someBytes();
  writeBytes(folder / "f", content);
  for (const std::uint64_t sizeAtFirst : {0U, 1U, 499U, 999U, 1000U}) {
    for (const std::size_t part : {1U, 7U, 499U, 5000U}) {
      InParts system(sizeAtFirst, part);
      OpenFile file(system);
      ASSERT_FALSE(file.open(folder / "f", OpenFor::Reading));
      std::string bytes = "before";
      EXPECT_FALSE(file.readAll(bytes, 1000));
      EXPECT_EQ(bytes, content) << sizeAtFirst << ' ' << part;
      EXPECT_EQ(file.readAll(bytes, 999).code, std::errc::file_too_large);
      EXPECT_EQ(bytes, "");
    }
  }
}

TEST(OpenFile, IsReadFromItsStart) {
  const test::TempFolder folder;
  const std::string content = someBytes();
  writeBytes(folder / "f", content);
  for (const std::size_t part : {1U, 7U, 499U, 5000U}) {
    InParts system(content.size(), part);
    OpenFile file(system);
    ASSERT_FALSE(file.open(folder / "f", OpenFor::Reading));
    for (const std::size_t size : {0U, 1U, 500U, 1000U, 1001U}) {
      std::string bytes = "before";
      EXPECT_FALSE(file.readStart(bytes, size));
      EXPECT_EQ(bytes, content.substr(0, size)) << size << ' ' << part;
    }
  }
}

TEST(OpenFile, GivesNothingAfterAnError) {
  const test::TempFolder folder;
  writeBytes(folder / "f", someBytes());
  for (const int readings : {0, 1, 5}) {
    for (const bool isWhole : {true, false}) {
      Failing system(readings);
      OpenFile file(system);
      ASSERT_FALSE(file.open(folder / "f", OpenFor::Reading));
      std::string bytes = "before";
      EXPECT_TRUE(isWhole ? file.readAll(bytes, 1000) : file.readStart(bytes, 500));
      EXPECT_EQ(bytes, "") << readings << isWhole;
    }
  }
}

TEST(OpenFile, IsWrittenToItsEnd) {
  const test::TempFolder folder;
  const std::string content = someBytes();
  for (const std::size_t part : {1U, 7U, 5000U}) {
    InParts system(0, part);
    OpenFile file(system);
    const Path path = folder / std::to_string(part);
    ASSERT_FALSE(file.open(path, OpenFor::New));
    EXPECT_FALSE(file.writeAll(content));
    EXPECT_FALSE(file.close());
    EXPECT_EQ(readBytes(path), content) << part;
  }
}

}  // namespace
}  // namespace brennet::platform
