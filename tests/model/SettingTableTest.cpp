#include "model/SettingTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "brennet/HotkeyBlock.h"

namespace brennet {
namespace {

TEST(SettingTable, NamesEverySettingOnce) {
  std::set<std::u16string_view> names;
  for (const Setting& row : settings()) names.insert(row.element);
  EXPECT_EQ(names.size(), settings().size());
}

TEST(SettingTable, IsNumberedByTheIds) {
  EXPECT_EQ(setting(SettingId::ZoomValue).element, u"ZoomValue");
  EXPECT_EQ(setting(SettingId::HotKey).element, u"HotKey");
  EXPECT_EQ(setting(SettingId::QuickChatIndex).element, u"QuickChatIndex");
  EXPECT_EQ(setting(SettingId::DisableLeftAltShowHP).element, u"DisableLeftAltShowHP");
}

TEST(LoadOrder, ReadsEverySettingOnce) {
  const std::set<SettingId> ids(loadOrder().begin(), loadOrder().end());
  EXPECT_EQ(ids.size(), kSettingCount);
}

TEST(BlockOrder, LeavesOutOnlyWhatTheBlockDoesNotCarry) {
  const std::set<SettingId> ids(blockOrder().begin(), blockOrder().end());
  EXPECT_EQ(ids.size(), blockOrder().size());
  EXPECT_EQ(ids.size(), kSettingCount - 2);
  EXPECT_EQ(ids.count(SettingId::ComboKey3to1), 0U);
  EXPECT_EQ(ids.count(SettingId::NumComboKeyIndex), 0U);
}

}  // namespace
}  // namespace brennet
