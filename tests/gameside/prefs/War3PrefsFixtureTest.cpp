// Whole preference files: as the game wrote them (<case>.in.txt), and as they have to be once the
// hotkeys of a scheme are in them (<case>.out.txt).
//
// The second file of each pair is a golden file, see Golden.h.

#include <gtest/gtest.h>

#include <string>

#include "gameside/prefs/War3PrefsFile.h"
#include "platform/Files.h"
#include "tests/support/Golden.h"
#include "tests/support/TestData.h"

namespace brennet {
namespace {

constexpr std::int32_t kAlt = 4;

// Twelve command-card positions and six inventory slots, in the order in which they are written.
constexpr War3HotkeySection kScheme[] = {
    {War3HotkeySection::kCommandCard, 2, 0, 0, true, true, 'Q'},
    {War3HotkeySection::kCommandCard, 2, 1, 0, true, true, 'W'},
    {War3HotkeySection::kCommandCard, 2, 2, 0, true, true, 'E'},
    {War3HotkeySection::kCommandCard, 2, 3, 0, true, true, 'R'},
    {War3HotkeySection::kCommandCard, 1, 1, 0, true, true, 'D'},
    {War3HotkeySection::kCommandCard, 1, 2, 0, true, true, 'F'},
    {War3HotkeySection::kCommandCard, 1, 3, 0, true, true, 'T'},
    {War3HotkeySection::kCommandCard, 1, 0, 0, true, true, 0},
    {War3HotkeySection::kCommandCard, 0, 0, 0, true, true, 0},
    {War3HotkeySection::kCommandCard, 0, 1, 0, true, true, 'S'},
    {War3HotkeySection::kCommandCard, 0, 2, 0, true, true, 'H'},
    {War3HotkeySection::kCommandCard, 0, 3, 7, true, true, 222},
    {War3HotkeySection::kInventory, 0, 0, kAlt, false, true, '1'},
    {War3HotkeySection::kInventory, 0, 1, kAlt, false, true, '2'},
    {War3HotkeySection::kInventory, 1, 0, kAlt, false, true, '3'},
    {War3HotkeySection::kInventory, 1, 1, kAlt, false, true, '4'},
    {War3HotkeySection::kInventory, 2, 0, kAlt, false, true, '5'},
    {War3HotkeySection::kInventory, 2, 1, 0, false, true, 0},
};

platform::Path fixture(const std::string& name) {
  return platform::pathFromNarrow(test::testData("gameside/" + name));
}

std::string withScheme(const std::string& fileBytes) {
  War3PrefsFile file = War3PrefsFile::parse(fileBytes);
  file.setCustomKeys(true);
  for (const War3HotkeySection& section : kScheme) file.addHotkeySection(section);
  return file.serialize();
}

class War3PrefsFixtureTest : public testing::TestWithParam<const char*> {};

TEST_P(War3PrefsFixtureTest, GetsTheHotkeysOfTheScheme) {
  const std::string name = GetParam();
  std::string in;
  ASSERT_FALSE(platform::readFile(fixture(name + ".in.txt"), in, platform::kAnySize));
  const std::string actual = withScheme(in);
  test::expectGolden("gameside/" + name + ".out.txt", actual);
  EXPECT_EQ(withScheme(actual), actual) << "a second run must change nothing";
}

INSTANTIATE_TEST_SUITE_P(Fixtures, War3PrefsFixtureTest,
                         testing::Values("crlf", "lf", "mixed", "no-last-newline", "hotkeys-last",
                                         "no-gameplay", "with-zeros"),
                         [](const auto& test) {
                           std::string name = test.param;
                           for (char& letter : name) {
                             if (letter == '-') letter = '_';
                           }
                           return name;
                         });

}  // namespace
}  // namespace brennet
