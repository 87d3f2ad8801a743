#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include <stdexcept>

#include "model/HotkeyConfig.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/COrrerySettingDlg.h"

namespace brennet::test {

// The basic page on a new configuration.
class BasicPage : public testing::Test {
 protected:
  HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  CBasicSetting7Widget page{config, nullptr};

  template <class Widget>
  Widget& find(const char* name) {
    return *page.findChild<Widget*>(QLatin1String(name));
  }
  QLineEdit& field(const char* name) { return find<QLineEdit>(name); }
  QCheckBox& box(const char* name) { return find<QCheckBox>(name); }
  QPushButton& button(const char* name) { return find<QPushButton>(name); }
  COrrerySettingDlg& orrery() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (auto* const dialog = qobject_cast<COrrerySettingDlg*>(window)) return *dialog;
    }
    throw std::logic_error("the page has no Orrery window");
  }
  QCheckBox& mana() {
    return *orrery().findChild<QCheckBox*>(QStringLiteral("chkShowFriendsMana"));
  }
};

}  // namespace brennet::test
