#pragma once

#include <gtest/gtest.h>

#include <QFont>
#include <QTranslator>

#include <memory>
#include <vector>

#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/ui/screens/PlayersScreens.h"

class CHotkeySettingDlg;
class QWidget;

namespace brennet::test {

// Windows in each of the two languages, with letters of the size that a host has: 9 points.
class FitWindows : public Dota7Test, public testing::WithParamInterface<const char*> {
 protected:
  FitWindows();
  ~FitWindows() override;

  // The settings dialog in one of its modes, shown.
  [[nodiscard]] std::unique_ptr<CHotkeySettingDlg> showDialog(bool isDota7);
  static void showWindow(QWidget& window);

  HotkeyConfig config;

 private:
  QFont font_;
  QTranslator catalogue_;
};

// Fails where a part of the window is outside the part of its screen that is free, or where one of
// the buttons of those names is not wholly in sight.
void expectInside(const QWidget& window, const QRect& available,
                  const std::vector<const char*>& buttons);

// Gives each control the focus by the keyboard, and fails where it is not wholly in sight then.
void expectFocusIsShown(QWidget& window);

}  // namespace brennet::test
