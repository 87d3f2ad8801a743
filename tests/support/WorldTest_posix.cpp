// The world of test programs has nothing of the caller's, and is the same as that of scripts.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"
#include "tests/support/World.h"

extern char** environ;

namespace brennet::test {
namespace {

// Variables that somebody may have set and that must not reach a test.
constexpr const char* kCallers[] = {"LANG",
                                    "LANGUAGE",
                                    "LC_CTYPE",
                                    "LC_NUMERIC",
                                    "QT_SCALE_FACTOR",
                                    "QT_STYLE_OVERRIDE",
                                    "QT_LOGGING_RULES",
                                    "XDG_CACHE_HOME",
                                    "XDG_CONFIG_HOME",
                                    "XDG_RUNTIME_DIR",
                                    "FONTCONFIG_FILE",
                                    "FONTCONFIG_PATH",
                                    "BRENNET_REGISTRY"};

// The environment, without the folder that scripts share.
std::set<std::string> ownWorld() {
  std::set<std::string> world;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    if (!std::string_view(*entry).starts_with("TMPDIR=")) world.insert(*entry);
  }
  return world;
}

std::set<std::string> worldOfScripts() {
  const std::string command = "\"" + testData("../support/world.sh") + "\" env --null";
  const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
  std::set<std::string> world;
  std::string entry;
  for (int byte = 0; (byte = std::fgetc(output.get())) != EOF;) {
    if (byte != 0) {
      entry += static_cast<char>(byte);
      continue;
    }
    // Only scripts have these: a folder for their tools and one that they share.
    const bool isTheirs =
        entry.starts_with("BRENNET_TOOLCHAIN_DIR=") || entry.starts_with("TMPDIR=");
    if (!isTheirs) world.insert(entry);
    entry.clear();
  }
  return world;
}

TEST(World, IsThereFromTheStart) {
  EXPECT_STREQ(std::getenv("HOME"), "/nonexistent");
  EXPECT_FALSE(std::filesystem::exists("/nonexistent"));
  EXPECT_STREQ(std::getenv("LC_ALL"), "C.UTF-8");
  const char* const folder = std::getenv("BRENNET_TEST_TMPDIR");
  const std::filesystem::path own = std::filesystem::temp_directory_path();
  EXPECT_EQ(own.parent_path(), folder != nullptr ? folder : "/tmp");
  EXPECT_TRUE(std::filesystem::is_empty(own));
  for (const char* const name : kCallers) EXPECT_EQ(std::getenv(name), nullptr) << name;
}

TEST(World, HasNothingOfTheCallersAndIsThatOfScripts) {
  for (const char* const name : kCallers) setenv(name, "/the/callers", 1);
  for (const char* const name : {"HOME", "TMPDIR"}) setenv(name, "/the/callers", 1);
  setenv("LC_ALL", "tr_TR.UTF-8", 1);
  setenv("TZ", "Pacific/Kiritimati", 1);
  setenv("SOMETHING_ELSE", "two\nlines", 1);
  setenv("BRENNET_TEST_ANYTHING", "two\nlines", 1);
  setenv("GTEST_ANYTHING", "a value", 1);
  const std::set<std::string> scripts = worldOfScripts();
  leaveTheCallersWorld();
  const std::set<std::string> own = ownWorld();
  EXPECT_EQ(scripts, own);
  for (const char* const entry : {"HOME=/nonexistent", "LC_ALL=C.UTF-8", "TZ=UTC0",
                                  "BRENNET_TEST_ANYTHING=two\nlines", "GTEST_ANYTHING=a value"}) {
    EXPECT_EQ(own.count(entry), 1U) << entry;
  }
  for (const std::string& entry : own) EXPECT_EQ(entry.find("/the/callers"), std::string::npos);
}

TEST(World, HasAnotherFolderForTemporaryFilesWhereOneIsNamed) {
  const TempFolder another;
  const char* const before = std::getenv("BRENNET_TEST_TMPDIR");
  const std::string namedBefore = before != nullptr ? before : "";
  setenv("BRENNET_TEST_TMPDIR", another.path().c_str(), 1);
  leaveTheCallersWorld();
  EXPECT_EQ(std::filesystem::temp_directory_path().parent_path(), another.path());
  EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::temp_directory_path()));
  before != nullptr ? setenv("BRENNET_TEST_TMPDIR", namedBefore.c_str(), 1)
                    : unsetenv("BRENNET_TEST_TMPDIR");
  leaveTheCallersWorld();
}

TEST(World, HasTheTimeOfGreenwich) {
  const std::time_t noon = 12 * 60 * 60;
  EXPECT_EQ(std::localtime(&noon)->tm_hour, 12);
}

}  // namespace
}  // namespace brennet::test
