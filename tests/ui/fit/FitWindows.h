#pragma once

#include <gtest/gtest.h>

#include <QFont>
#include <QTranslator>

#include <memory>
#include <vector>

#include "model/HotkeyConfig.h"
#include "tests/gameside/Dota7Test.h"
#include "tests/ui/screens/TestScreens.h"

class CHotkeySettingDlg;
class QWidget;

namespace brennet::test {

// A screen that players have.
struct ScreenRow {
  const char* name;
  ScreenShape shape;
};
[[nodiscard]] const std::vector<ScreenRow>& playersScreens();

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

// Whether the page of the window has a scroll bar.
[[nodiscard]] bool isScrolled(const QWidget& window);

// Fails where a part of the window is outside the part of its screen that is free, or where one of
// the buttons of those names is not wholly in sight.
void expectInside(const QWidget& window, const QRect& available,
                  const std::vector<const char*>& buttons);

// Gives each control the focus by the keyboard, and fails where it is not wholly in sight then.
void expectFocusIsShown(QWidget& window);

}  // namespace brennet::test
