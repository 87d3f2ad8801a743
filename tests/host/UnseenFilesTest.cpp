// Settings files that a load could not use are not overwritten unseen.

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "tests/host/HostFixture.h"

namespace brennet {
namespace {

using namespace test;

class UnseenFiles : public HostFixture {
 protected:
  std::vector<std::string> keptFiles() {
    std::vector<std::string> names;
    std::istringstream lines(folder_.listing());
    for (std::string name; std::getline(lines, name);) {
      if (name.starts_with("KeyInfo.xml.kept-")) names.push_back(name);
    }
    return names;
  }

  std::string keptContent() {
    const std::vector<std::string> names = keptFiles();
    return names.size() == 1 ? readBytes(folder_ / names[0]) : std::to_string(names.size());
  }
};

constexpr const char* kUnusable[] = {
    "<KeyInfo><LastSaveTime>1</LastSaveTime>",  // not well-formed
    "<KeyInfo><LastSaveTime></LastSaveTime></KeyInfo>", "<Settings/>", "half a fi", "",
};

TEST_F(UnseenFiles, ArePutAsideByTheFirstSave) {
  for (const char* const text : kUnusable) {
    for (const std::string& name : keptFiles()) std::filesystem::remove(folder_ / name);
    EXPECT_TRUE(loadText(kDefaults));
    EXPECT_FALSE(loadText(text)) << text;
    EXPECT_EQ(keptFiles().size(), 0U) << "a load puts nothing aside";
    EXPECT_TRUE(brennet_.SetEnabled(true, 5) || brennet_.SetEnabled(false, 5));
    EXPECT_EQ(keptContent(), text);
    EXPECT_TRUE(brennet_.LoadSettings(settings_.wstring().c_str())) << text;
  }
}

TEST_F(UnseenFiles, ArePutAsideOnce) {
  EXPECT_FALSE(loadText("damaged"));
  EXPECT_TRUE(brennet_.SetEnabled(false, 5) || brennet_.SetEnabled(true, 5));
  EXPECT_TRUE(brennet_.SetEnabled(false, 6) || brennet_.SetEnabled(true, 6));
  EXPECT_EQ(keptContent(), "damaged");
}

TEST_F(UnseenFiles, ArePutAsideByARecordThatIsApplied) {
  EXPECT_FALSE(loadText("damaged"));
  HotkeyBlock block = filled();
  block.flags ^= 1U;
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 7), 0);
  EXPECT_EQ(keptContent(), "damaged");
}

TEST_F(UnseenFiles, AreNoneWhereAFileWasReadOrMissing) {
  EXPECT_TRUE(brennet_.SetEnabled(false, 5));
  std::filesystem::remove(settings_);
  EXPECT_FALSE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_TRUE(brennet_.SetEnabled(false, 6) || brennet_.SetEnabled(true, 6));
  EXPECT_EQ(folder_.listing(), "Documents\nKeyInfo.xml\n");
}

TEST_F(UnseenFiles, WaitForASaveThatSucceeds) {
  EXPECT_FALSE(loadText("damaged"));
  EXPECT_FALSE(brennet_.LoadSettings(folder_.path().wstring().c_str()));
  EXPECT_FALSE(brennet_.SetEnabled(false, 5) || brennet_.SetEnabled(true, 5));
  EXPECT_FALSE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_EQ(keptFiles().size(), 0U);
  EXPECT_TRUE(brennet_.SetEnabled(false, 6) || brennet_.SetEnabled(true, 6));
  EXPECT_EQ(keptContent(), "damaged");
}

// 64 MiB is far more than any settings; a load that read on would use up the host's memory.
TEST_F(UnseenFiles, AreFilesOfAnySize) {
  std::filesystem::resize_file(settings_, (64U << 20U) + 1);
  EXPECT_FALSE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_EQ(std::filesystem::file_size(settings_), (64U << 20U) + 1);
  EXPECT_TRUE(brennet_.SetEnabled(true, 5) || brennet_.SetEnabled(false, 5));
  ASSERT_EQ(keptFiles().size(), 1U);
  EXPECT_EQ(std::filesystem::file_size(folder_ / keptFiles()[0]), (64U << 20U) + 1);
}

}  // namespace
}  // namespace brennet
