// Whether it is plain to see which control has the focus, measured in pictures of real controls.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

#include "tests/ui/PixelContrast.h"
#include "ui/window/CMsgBox.h"
#include "ui/window/StyleSheet.h"

namespace brennet::test {
namespace {

// Accessibility guidelines ask two things of whatever shows the focus: this contrast with the
// colour that was there before,
constexpr double kPlain = 3;
// and a certain area. Here the least is half as many pixels as the control's outline has.
int leastPixels(const QWidget& control) {
  return control.width() + control.height();
}

int plainPixels(const QImage& with, const QImage& without) {
  EXPECT_EQ(with.size(), without.size());
  int count = 0;
  for (int y = 0; y < with.height(); ++y) {
    for (int x = 0; x < with.width(); ++x) {
      if (contrast(with.pixel(x, y), without.pixel(x, y)) >= kPlain) ++count;
    }
  }
  return count;
}

// Controls cache their size hint until their style changes.
QSize freshSizeHint(QWidget& control) {
  QEvent change(QEvent::StyleChange);
  QApplication::sendEvent(&control, &change);
  return control.sizeHint();
}

// What holds for a control without and with the focus.
void expectPlainFocus(QWidget& control, QWidget& other) {
  other.setFocus();
  ASSERT_FALSE(control.hasFocus());
  const QSize size = freshSizeHint(control);
  const QImage without = pictureOf(control);
  control.setFocus();
  ASSERT_TRUE(control.hasFocus());
  EXPECT_GE(plainPixels(pictureOf(control), without), leastPixels(control));
  EXPECT_EQ(freshSizeHint(control), size) << "something jumps";
}

class FocusLookTest : public testing::Test {
 protected:
  FocusLookTest() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x1E, 0x24, 0x2F));
    window_.setPalette(palette);
    window_.resize(300, 200);
    EXPECT_TRUE(loadStyleSheet(window_, QStringLiteral(":/skin/war3key.qss")));
    other_.setFocusPolicy(Qt::StrongFocus);
    other_.move(290, 190);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    QApplication::setActiveWindow(&window_);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    QTest::mouseMove(&window_, QPoint(1, 1));
  }

  template <class Control, class... Text>
  Control& make(const char* name, const Text&... text) {
    auto* const control = new Control(text..., &window_);
    control->setObjectName(QLatin1String(name));
    control->setFocusPolicy(Qt::StrongFocus);
    control->move(20, 20);
    control->show();
    control->resize(control->sizeHint().boundedTo(QSize(200, 120)));
    return *control;
  }

  void check(QWidget& control) {
    SCOPED_TRACE(control.objectName().toStdString() + ", " + control.metaObject()->className());
    expectPlainFocus(control, other_);
  }

  // In all states but pressed and disabled.
  void checkButton(const char* name, const QString& text) {
    auto& button = make<QPushButton>(name, text);
    button.setCheckable(true);
    for (const bool isChecked : {false, true}) {
      SCOPED_TRACE(isChecked ? "checked" : "not checked");
      button.setChecked(isChecked);
      check(button);
      SCOPED_TRACE("under the mouse");
      QTest::mouseMove(&button);
      check(button);
      QTest::mouseMove(&window_, QPoint(1, 1));
    }
    delete &button;
  }

  QWidget window_;
  QWidget other_{&window_};
};

// The small buttons have no room for a text.
const char* const kWithText[] = {"btnOther",
                                 "btnSwichBasicSetting",
                                 "btnSwichAdvancedSetting",
                                 "btnSwichChatWheelSetting",
                                 "btnSwitchPlat",
                                 "btnSwitchDota7",
                                 "btnOrrerySetting",
                                 "btnTalkSetting",
                                 "btnDota7Setting",
                                 "chatHotkeyBtn"};
const char* const kWithoutText[] = {"btnClose", "btn_skillcast_1", "btn_goods_cast_1"};

TEST_F(FocusLookTest, IsPlainToSeeInButtons) {
  for (const char* const name : kWithText) checkButton(name, QStringLiteral("OK"));
  for (const char* const name : kWithoutText) checkButton(name, QString());
}

TEST_F(FocusLookTest, IsPlainToSeeInBoxesAndLinks) {
  for (const bool isChecked : {false, true}) {
    auto& box = make<QCheckBox>("box", QStringLiteral("a check box"));
    box.setChecked(isChecked);
    check(box);
    auto& choice = make<QRadioButton>("choice", QStringLiteral("a way"));
    choice.setChecked(isChecked);
    check(choice);
    delete &box;
    delete &choice;
  }
  for (const char* const name : {"lblResetToDefaultSetting", "lblUseRecommendedSetting"}) {
    check(make<QLabel>(name, QStringLiteral("a link")));
  }
}

TEST_F(FocusLookTest, IsPlainToSeeInFieldsAndLists) {
  auto& field = make<QLineEdit>("edtOther");
  field.setReadOnly(true);  // without the cursor
  check(field);
  field.hide();
  auto& box = make<QComboBox>("cmbOther");
  box.addItem(QStringLiteral("Group 1"));
  box.resize(box.sizeHint());
  check(box);
}

TEST_F(FocusLookTest, IsPlainToSeeInTheChatWheel) {
  auto& wheel = make<QWidget>("ChatWheel");
  wheel.resize(180, 60);
  auto* const phrase = new QLineEdit(&wheel);
  phrase->resize(130, 28);
  phrase->setReadOnly(true);
  phrase->show();
  check(*phrase);
}

TEST_F(FocusLookTest, IsPlainToSeeInTreesAndTables) {
  auto& tree = make<QTreeWidget>("tree");
  auto* const item = new QTreeWidgetItem(&tree, {QStringLiteral("an item")});
  check(tree);
  tree.setCurrentItem(item);
  check(tree);
  tree.hide();
  auto& table = make<QTableWidget>("table", 2, 2);
  check(table);
  table.setCurrentCell(1, 1);
  check(table);
}

TEST(FocusLookInTheBox, IsPlainToSee) {
  CMsgBox box(QMessageBox::Warning, QStringLiteral("title"), QStringLiteral("a text"),
              QMessageBox::Ok | QMessageBox::Cancel);
  box.setButtonTexts();
  box.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
  QApplication::setActiveWindow(&box);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  QWidget& ok = *box.button(QMessageBox::Ok);
  QWidget& cancel = *box.button(QMessageBox::Cancel);
  expectPlainFocus(ok, cancel);
  expectPlainFocus(cancel, ok);
  SCOPED_TRACE("under the mouse");
  QTest::mouseMove(&ok);
  expectPlainFocus(ok, cancel);
}

}  // namespace
}  // namespace brennet::test
