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

// Windows in each of the two languages, with letters as large as in a host: 9 points.
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

// Fails if any part of the window is outside `available`, or if one of the buttons of those names
// is not wholly in sight.
void expectInside(const QWidget& window, const QRect& available,
                  const std::vector<const char*>& buttons);

// Gives each control the focus as Tab does, and fails if that does not bring it wholly into sight.
void expectFocusIsShown(QWidget& window);

}  // namespace brennet::test
