// What hosts are compiled against never changes unnoticed.

#include <gtest/gtest.h>

#include <brennet/HotkeyBlock.h>
#include <brennet/Version.h>

#include <regex>
#include <string>
#include <vector>

#include "tests/support/Golden.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"

namespace brennet::test {
namespace {

using Matches = std::vector<std::smatch>;

std::string versionText() {
  return std::to_string(BRENNET_VERSION_MAJOR) + '.' + std::to_string(BRENNET_VERSION_MINOR) + '.' +
         std::to_string(BRENNET_VERSION_PATCH);
}

Matches allOf(const std::string& text, const char* pattern) {
  const std::regex expression(pattern);
  return {std::sregex_iterator(text.begin(), text.end(), expression), {}};
}

std::string slots() {
  const std::string header = readBytes(projectFile("host/include/brennet/IBrennet.h"));
  std::string text;
  int number = 0;
  for (const std::smatch& slot :
       allOf(header, R"(virtual ([\w:]+) BRENNET_CALL (\w+)\(([^)]*)\) = 0;)")) {
    const std::string arguments = std::regex_replace(slot.str(3), std::regex(R"(\s+)"), " ");
    text += "slot " + std::to_string(number++) + ": " + slot.str(1) + ' ' + slot.str(2) + '(' +
            arguments + ")\n";
  }
  return text;
}

// The header's own assertions hold the compiler to these offsets.
std::string record() {
  const std::string header = readBytes(projectFile("model/include/brennet/HotkeyBlock.h"));
  std::string text = "record: " + std::to_string(sizeof(HotkeyBlock)) + " bytes\n";
  const Matches fields = allOf(header, R"(BRENNET_BLOCK_OFFSET\((\w+), (\d+)\);)");
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::size_t begin = std::stoul(fields[i].str(2));
    const std::size_t end =
        i + 1 < fields.size() ? std::stoul(fields[i + 1].str(2)) : sizeof(HotkeyBlock);
    text += "field " + fields[i].str(1) + ": at " + std::to_string(begin) + ", " +
            std::to_string(end - begin) + " bytes\n";
  }
  for (const std::smatch& flag : allOf(header, R"(FLAG\((\d+), (\w+)\))")) {
    text += "flag " + flag.str(2) + ": bit " + flag.str(1) + '\n';
  }
  return text;
}

std::string interface() {
  return "export: GetBrennetPtr\n" + slots() + record();
}

TEST(Abi, ChangesWithTheVersionOnly) {
  const std::string version = "version: " + versionText() + '\n';
  const std::string actual = interface();
  const std::string stored = readBytes(projectFile("sdk/ABI.txt"));
  const bool isOfThisVersion = stored.find(version) != std::string::npos;
  ASSERT_TRUE(!isOfThisVersion || stored.find(actual) != std::string::npos)
      << "Hosts would see a change. Raise the version in Version.h, by MINOR if something was "
         "appended, else by MAJOR, then run make update.";
  expectGoldenPart("sdk/ABI.txt", "interface", version + actual);
}

TEST(Abi, IsSeenWhole) {
  EXPECT_EQ(allOf(slots(), "slot ").size(), 12U);
  EXPECT_EQ(allOf(record(), "field ").size(), 29U);
  EXPECT_EQ(allOf(record(), "flag ").size(), 7U);
}

}  // namespace
}  // namespace brennet::test
