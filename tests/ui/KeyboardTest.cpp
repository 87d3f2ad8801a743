// The settings dialog without a mouse: where Tab leads, and whether the focus can be seen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTest>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/capture/CKeyLineEdit.h"

namespace brennet::test {
namespace {

bool isKeyField(const QWidget& control) {
  return qobject_cast<const CKeyLineEdit*>(&control) != nullptr;
}

QImage pictureOf(QWidget& control) {
  // With two pixels around the control, where the frame of the focus may be.
  const QRect place = QRect(control.mapTo(control.window(), QPoint()), control.size());
  return control.window()->grab(place.adjusted(-2, -2, 2, 2)).toImage();
}

class Keyboard : public Dota7Test {
 protected:
  Keyboard() : dialog(config, manager) {
    dialog.show();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
  }

  // The controls of the dialog that the keyboard can reach, in the order of the focus chain.
  std::vector<QWidget*> chain() {
    std::vector<QWidget*> controls;
    for (QWidget* at = dialog.nextInFocusChain(); at != &dialog; at = at->nextInFocusChain()) {
      const bool isReached = (at->focusPolicy() & Qt::TabFocus) != 0 && at->isEnabled();
      if (isReached && at->isVisible() && at->window() == &dialog) controls.push_back(at);
    }
    return controls;
  }

  // Those that Tab can leave again.
  std::vector<QWidget*> othersThanKeyFields() {
    std::vector<QWidget*> controls = chain();
    std::erase_if(controls, [](const QWidget* control) { return isKeyField(*control); });
    return controls;
  }

  // Presses Tab from the title up to the first key field, which takes Tab as a key. Returns the
  // controls met on the way.
  std::vector<QWidget*> walk() {
    find("titleWidget").setFocus();
    std::vector<QWidget*> met;
    const std::size_t limit = 2 * chain().size();
    while (met.size() < limit) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      QWidget* const next = QApplication::focusWidget();
      if (next == nullptr || isKeyField(*next)) break;
      met.push_back(next);
    }
    return met;
  }

  void expectTabToMeetEachOnce() {
    const std::vector<QWidget*> met = walk();
    const std::vector<QWidget*> expected = othersThanKeyFields();
    EXPECT_EQ(met.size(), expected.size());
    for (const QWidget* const control : expected) {
      EXPECT_EQ(std::count(met.begin(), met.end(), control), 1) << nameOf(*control);
    }
    for (const char* const name : {"lblResetToDefaultSetting", "btnOK", "btnCancel"}) {
      EXPECT_EQ(std::count(met.begin(), met.end(), &find(name)), 1) << name;
    }
    EXPECT_TRUE(isKeyField(*QApplication::focusWidget())) << "and then come the fields";
  }

  void expectFocusToShow() {
    // Controls show the focus only once Tab has been pressed.
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

  QWidget& find(const char* name) { return *dialog.findChild<QWidget*>(QLatin1String(name)); }
  static std::string nameOf(const QWidget& control) { return control.objectName().toStdString(); }

  HotkeyConfig config;
  CHotkeySettingDlg dialog;
};

TEST_F(Keyboard, LeadsToEachControl) {
  EXPECT_EQ(QApplication::focusWidget(), &find("titleWidget"));
  expectTabToMeetEachOnce();
  dialog.onSwitchDota7KeySettingDlg();
  expectTabToMeetEachOnce();
  dialog.onSwitchPlatKeySettingDlg();
  expectTabToMeetEachOnce();
}

TEST_F(Keyboard, LeadsInTheOrderOfReading) {
  const char* const kPlatform[] = {"chkUseHotkeySettings",
                                   "cmbHotkeySetting",
                                   "lblResetToDefaultSetting",
                                   "chkSkillHero",
                                   "btnOK",
                                   "btnCancel"};
  const char* const kDota7[] = {"btnSwitchPlat", "lblResetToDefaultSetting",
                                "chk_Normal",    "chatHotkeyBtn",
                                "btnOK",         "btnCancel"};
  const auto expectOrder = [&](std::span<const char* const> names) {
    const std::vector<QWidget*> met = walk();
    auto at = met.begin();
    for (const char* const name : names) {
      at = std::find(at, met.end(), &find(name));
      ASSERT_NE(at, met.end()) << name;
    }
    EXPECT_EQ(met.front(), &find(names.front()));
    EXPECT_EQ(met.back(), &find(names.back()));
  };
  expectOrder(kPlatform);
  dialog.onSwitchDota7KeySettingDlg();
  expectOrder(kDota7);
}

TEST_F(Keyboard, ShowsWhereItIs) {
  expectFocusToShow();
  dialog.onSwitchDota7KeySettingDlg();
  expectFocusToShow();
}

}  // namespace
}  // namespace brennet::test
