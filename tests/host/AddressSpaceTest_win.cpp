// What 32 bits mean: the sizes that the interface relies on, and files that do not fit.

#include <windows.h>
// gtest.h comes after windows.h, which would undo its macros.
#include <climits>
#include <fstream>

#include "platform/Files.h"
#include "tests/host/HostFixture.h"

namespace brennet {
namespace {

using namespace test;

// The sizes of the compilers that hosts are built with.
static_assert(sizeof(void*) == 4 && sizeof(std::size_t) == 4 && sizeof(long) == 4);
static_assert(sizeof(wchar_t) == 2 && sizeof(bool) == 1 && CHAR_BIT == 8);

constexpr std::uint64_t kMebibyte = 1U << 20U;

class AddressSpace : public HostFixture {
 protected:
  // Loads a settings file of `size` bytes: well-formed, with `elements` bytes of empty elements and
  // a gap of zeros, which take no room on the disk.
  bool loadLarge(std::uint64_t elements, std::uint64_t size) {
    constexpr std::string_view kElement = "<a/>";
    constexpr std::string_view kEnd = "</KeyInfo>";
    std::string text(kDefaults);
    text.resize(text.size() - kEnd.size());
    text.reserve(text.size() + static_cast<std::size_t>(elements));
    while (text.size() < elements) text += kElement;
    writeBytes(settings_, text);
    std::filesystem::resize_file(settings_, size);
    std::ofstream(settings_, std::ios::binary | std::ios::app) << kEnd;
    return brennet_.LoadSettings(settings_.wstring().c_str());
  }
};

TEST_F(AddressSpace, TakesFilesThatFit) {
  EXPECT_TRUE(loadLarge(0, 32 * kMebibyte));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U);
  EXPECT_TRUE(loadLarge(4 * kMebibyte, 5 * kMebibyte));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U);
}

TEST_F(AddressSpace, RefusesFilesThatDoNotFitAndGoesOn) {
  struct Row {
    const char* what;
    std::uint64_t elements, size;
  };
  constexpr Row kRows[] = {
      {"the text fits, its elements do not", 240 * kMebibyte, 241 * kMebibyte},
      {"the bytes fit, the text does not", 0, 900 * kMebibyte},
      {"the bytes do not fit", 0, 1900 * kMebibyte},
  };
  for (const Row& row : kRows) {
    EXPECT_FALSE(loadLarge(row.elements, row.size)) << row.what;
    EXPECT_EQ(brennet_.GetLastSaveTime(), 0U) << row.what;
    EXPECT_TRUE(loadText(kDefaults)) << row.what;
    EXPECT_EQ(filled().heroSkillKeys0to5[0], 0x5100) << row.what;
  }
}

// Counted in 32 bits, the file has just the size of the valid one at its start.
TEST_F(AddressSpace, RefusesMoreBytesThanASizeCounts) {
  constexpr std::uint64_t kSizes = std::uint64_t{1} << 32U;
  writeBytes(settings_, kDefaults);
  std::filesystem::resize_file(settings_, kSizes + std::string_view(kDefaults).size());
  std::string bytes;
  EXPECT_TRUE(platform::readFile(settings_, bytes, platform::kAnySize))
      << "an error, and no lack of memory";
  EXPECT_FALSE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_EQ(brennet_.GetLastSaveTime(), 0U);
}

}  // namespace
}  // namespace brennet
