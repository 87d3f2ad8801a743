#include "gameside/prefs/War3HotkeySection.h"

#include <gtest/gtest.h>

#include <climits>

namespace brennet {
namespace {

constexpr std::int32_t kCommandCard = War3HotkeySection::kCommandCard;
constexpr std::int32_t kInventory = War3HotkeySection::kInventory;

War3HotkeySection sectionAt(std::int32_t kind, std::int32_t first, std::int32_t second) {
  War3HotkeySection section;
  section.kind = kind;
  section.first = first;
  section.second = second;
  return section;
}

struct NameCase {
  std::int32_t kind;
  std::int32_t first;
  std::int32_t second;
  const char* name;
};

class War3HotkeySectionName : public testing::TestWithParam<NameCase> {};

TEST_P(War3HotkeySectionName, ComesFromKindRowAndColumn) {
  const NameCase& row = GetParam();
  EXPECT_EQ(sectionName(sectionAt(row.kind, row.first, row.second)), row.name);
}

INSTANTIATE_TEST_SUITE_P(CommandCard, War3HotkeySectionName,
                         testing::Values(NameCase{kCommandCard, 2, 0, "Commandbar Hotkeys 20"},
                                         NameCase{kCommandCard, 2, 3, "Commandbar Hotkeys 23"},
                                         NameCase{kCommandCard, 1, 0, "Commandbar Hotkeys 10"},
                                         NameCase{kCommandCard, 0, 0, "Commandbar Hotkeys 00"},
                                         NameCase{kCommandCard, 12, -3,
                                                  "Commandbar Hotkeys 12-3"}));

INSTANTIATE_TEST_SUITE_P(Inventory, War3HotkeySectionName,
                         testing::Values(NameCase{kInventory, 0, 0, "Inventory Hotkeys 0"},
                                         NameCase{kInventory, 0, 1, "Inventory Hotkeys 1"},
                                         NameCase{kInventory, 1, 0, "Inventory Hotkeys 2"},
                                         NameCase{kInventory, 1, 1, "Inventory Hotkeys 3"},
                                         NameCase{kInventory, 2, 0, "Inventory Hotkeys 4"},
                                         NameCase{kInventory, 2, 1, "Inventory Hotkeys 5"},
                                         NameCase{kInventory, INT_MAX, INT_MAX,
                                                  "Inventory Hotkeys 6442450941"}));

INSTANTIATE_TEST_SUITE_P(UnknownKind, War3HotkeySectionName,
                         testing::Values(NameCase{0, 1, 1, ""}, NameCase{3, 1, 1, ""},
                                         NameCase{-1, 1, 1, ""}));

TEST(War3HotkeySectionText, WritesEverySwitchThatIsOn) {
  War3HotkeySection section = sectionAt(kCommandCard, 2, 1);
  section.metaKeyState = 4;
  section.heroOnly = true;
  section.quickCast = true;
  section.hotkey = 0x57;
  EXPECT_EQ(sectionText(section),
            "[Commandbar Hotkeys 21]\nHeroOnly=1\nHotkey=87\nMetaKeyState=4\nQuickCast=1\n\n");
}

TEST(War3HotkeySectionText, WritesAPositionWithoutAKeyAllTheSame) {
  EXPECT_EQ(sectionText(sectionAt(kInventory, 1, 1)),
            "[Inventory Hotkeys 3]\nHeroOnly=0\nHotkey=0\nMetaKeyState=0\nQuickCast=0\n\n");
}

TEST(War3HotkeySectionText, GivesAnUnknownKindAnEmptyName) {
  EXPECT_EQ(sectionText(sectionAt(9, 1, 1)),
            "[]\nHeroOnly=0\nHotkey=0\nMetaKeyState=0\nQuickCast=0\n\n");
}

}  // namespace
}  // namespace brennet
