// The dialog that follows one whose process ended while it was open.

#include "tests/ui/SettingsDialogTest.h"

namespace brennet::test {
namespace {

using CHotkeySettingDlgKilledTest = SettingsDialog;

TEST_F(CHotkeySettingDlgKilledTest, ShowsWhatStoodThereBefore) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  registry.set(kDota7ControlPath, u"HStopKey", bytesValue("S"));
  const platform::RegFile before = registry.content();
  {
    Dota7KeyInfoManager killed;
    killed.settings().load();
    EXPECT_TRUE(killed.settings().storeKey(field(u"edt_HStopKey"), key('T')));
  }
  EXPECT_NE(registry.content(), before);
  dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  EXPECT_EQ(stopKey().text(), QStringLiteral("S"));
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet::test
