#include "tests/support/Golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "platform/Files.h"
#include "tests/support/TestData.h"

namespace brennet::test {
namespace {

constexpr char kHint[] =
    " is not what the code makes. Run \"make update\" and look at the difference";

bool isUpdating() {
  return std::getenv("BRENNET_UPDATE_GOLDEN") != nullptr;
}

void replace(const std::string& file, const std::string& content) {
  std::filesystem::create_directories(std::filesystem::path(file).parent_path());
  ASSERT_FALSE(platform::replaceFile(platform::pathFromNarrow(file), content)) << file;
}

// A file that does not exist yet counts as empty.
std::string read(const std::string& file) {
  std::string content;
  if (platform::readFile(platform::pathFromNarrow(file), content, platform::kAnySize)) return {};
  return content;
}

}  // namespace

void expectGolden(const std::string& name, const std::string& actual) {
  const std::string file = testData(name);
  if (isUpdating() && read(file) != actual) replace(file, actual);
  EXPECT_EQ(actual, read(file)) << "tests/data/" << name << kHint;
}

void expectGolden(const std::string& name, const std::string& actual,
                  const std::function<std::string(const std::string& stored)>& differenceTo) {
  const std::string file = testData(name);
  if (isUpdating() && !differenceTo(read(file)).empty()) replace(file, actual);
  EXPECT_EQ(differenceTo(read(file)), "") << "tests/data/" << name << kHint;
}

void expectGoldenPart(const std::string& file, const std::string& part, const std::string& actual) {
  const std::string path = projectFile(file);
  std::string content = read(path);
  const std::string first = "make update writes this: " + part;
  const std::size_t head = content.find(first);
  ASSERT_NE(head, std::string::npos) << file << " lacks the line \"" << first << '"';
  const std::size_t start = content.find('\n', head) + 1;
  const std::size_t foot = content.find("make update: end", start);
  ASSERT_NE(foot, std::string::npos) << file << " lacks the line \"make update: end\"";
  const std::size_t size = content.rfind('\n', foot) + 1 - start;
  if (isUpdating() && content.compare(start, size, actual) != 0) {
    replace(path, content.replace(start, size, actual));
    return;
  }
  EXPECT_EQ(actual, content.substr(start, size)) << part << " in " << file << kHint;
}

}  // namespace brennet::test
