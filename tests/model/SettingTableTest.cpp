#include "model/SettingTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace brennet {
namespace {

TEST(SettingTable, NamesEverySettingOnce) {
  std::set<std::u16string_view> names;
  for (const Setting& row : kSettings) names.insert(row.element);
  EXPECT_EQ(names.size(), kSettings.size());
}

TEST(SettingTable, LeavesOutOfTheBlockWhatShowsInOtherSettings) {
  const std::set<SettingId> ids(kBlockOrder.begin(), kBlockOrder.end());
  EXPECT_EQ(ids.size(), kBlockOrder.size());
  EXPECT_EQ(ids.count(SettingId::ComboKey3to1), 0U);
  EXPECT_EQ(ids.count(SettingId::NumComboKeyIndex), 0U);
}

}  // namespace
}  // namespace brennet
