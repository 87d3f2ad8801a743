// The settings dialog without a mouse: where Tab leads, and how one sees where one is.

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <algorithm>
#include <string>
#include <vector>

#include "model/HotkeyConfig.h"
#include "tests/gameside/Dota7Test.h"
#include "ui/CHotkeySettingDlg.h"

namespace brennet::test {
namespace {

bool isKeyField(const QWidget& control) {
  return qobject_cast<const QLineEdit*>(&control) != nullptr;
}

QImage pictureOf(QWidget& control) {
  // A little of what is around it too, for a frame outside.
  const QRect place = QRect(control.mapTo(control.window(), QPoint()), control.size());
  return control.window()->grab(place.adjusted(-2, -2, 2, 2)).toImage();
}

class Keyboard : public Dota7Test {
 protected:
  Keyboard() : dialog(config, manager) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  // What can have the focus by the keyboard, from the dialog's first control on.
  std::vector<QWidget*> chain() {
    std::vector<QWidget*> controls;
    for (QWidget* at = dialog.nextInFocusChain(); at != &dialog; at = at->nextInFocusChain()) {
      const bool isReached = (at->focusPolicy() & Qt::TabFocus) != 0 && at->isEnabled();
      if (isReached && at->isVisible() && at->window() == &dialog) controls.push_back(at);
    }
    return controls;
  }

  // Key fields take Tab as a key: from each other control it leads to the next one.
  void expectTabToLead() {
    const std::vector<QWidget*> controls = chain();
    int others = 0;
    for (std::size_t i = 0; i < controls.size(); ++i) {
      if (isKeyField(*controls[i])) continue;
      const bool isAfterField = i == 0 || isKeyField(*controls[i - 1]);
      if (isAfterField) controls[i]->setFocus();
      ASSERT_EQ(QApplication::focusWidget(), controls[i]) << nameOf(*controls[i]);
      ++others;
      QTest::keyClick(controls[i], Qt::Key_Tab);
      QWidget* const next = controls[(i + 1) % controls.size()];
      ASSERT_EQ(QApplication::focusWidget(), next) << "after " << nameOf(*controls[i]);
    }
    EXPECT_GT(others, 5);
  }

  void expectFocusToShow() {
    // From the first Tab on controls show it.
    chain().front()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    for (QWidget* const control : chain()) {
      if (isKeyField(*control)) continue;
      control->setFocus(Qt::TabFocusReason);
      ASSERT_TRUE(control->hasFocus()) << nameOf(*control);
      const QImage with = pictureOf(*control);
      control->clearFocus();
      const bool isShown = with != pictureOf(*control);
      EXPECT_TRUE(isShown) << nameOf(*control);
    }
  }

  static std::string nameOf(const QWidget& control) { return control.objectName().toStdString(); }

  HotkeyConfig config;
  CHotkeySettingDlg dialog;
};

TEST_F(Keyboard, LeadsFromControlToControl) {
  expectTabToLead();
  dialog.onSwitchDota7KeySettingDlg();
  expectTabToLead();
}

TEST_F(Keyboard, ShowsWhereItIs) {
  expectFocusToShow();
  dialog.onSwitchDota7KeySettingDlg();
  expectFocusToShow();
}

TEST_F(Keyboard, ReachesTheLink) {
  const auto* const link = dialog.findChild<QLabel*>(QStringLiteral("lblResetToDefaultSetting"));
  const std::vector<QWidget*> controls = chain();
  EXPECT_NE(std::find(controls.begin(), controls.end(), link), controls.end());
}

}  // namespace
}  // namespace brennet::test
