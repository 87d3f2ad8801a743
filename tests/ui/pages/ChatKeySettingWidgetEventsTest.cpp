// The quick-chat dialog under the mouse and the keyboard.

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>

#include "tests/ui/pages/ChatPageTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/pages/ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

class ChatKeySettingWidgetEventsTest : public testing::Test {
 protected:
  QLineEdit& phrase() { return find<QLineEdit>(dialog_, QStringLiteral("chatLineEdit_1")); }
  ChatKeySettingWidget& dialog() { return dialog_; }
  HotkeyScheme& scheme() { return *config_.editableScheme(); }

 private:
  HotkeyConfig config_;
  ChatKeySettingWidget dialog_{config_, nullptr};
};

void sendMouse(QWidget& widget, QEvent::Type type, Qt::MouseButton button, QPoint global) {
  QMouseEvent event(type, widget.mapFromGlobal(global), global, button,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

constexpr auto kPress = QEvent::MouseButtonPress;
constexpr auto kMove = QEvent::MouseMove;
constexpr auto kRelease = QEvent::MouseButtonRelease;

TEST_F(ChatKeySettingWidgetEventsTest, IsMovedWithTheLeftButton) {
  dialog().move(100, 100);
  sendMouse(dialog(), kPress, Qt::LeftButton, {105, 107});
  sendMouse(dialog(), kMove, Qt::NoButton, {125, 117});
  EXPECT_EQ(dialog().pos(), QPoint(120, 110));
  sendMouse(dialog(), kMove, Qt::NoButton, {100, 100});
  EXPECT_EQ(dialog().pos(), QPoint(95, 93));
  sendMouse(dialog(), kRelease, Qt::LeftButton, {100, 100});
  sendMouse(dialog(), kMove, Qt::NoButton, {200, 200});
  EXPECT_EQ(dialog().pos(), QPoint(95, 93));
}

// Whatever hides the dialog may also get the release.
TEST_F(ChatKeySettingWidgetEventsTest, IsNotMovedAnyMoreWhenItWasHiddenMeanwhile) {
  dialog().show();
  const QPoint corner = dialog().pos();
  sendMouse(dialog(), kPress, Qt::LeftButton, corner + QPoint(5, 5));
  dialog().hide();
  dialog().show();
  sendMouse(dialog(), kMove, Qt::NoButton, corner + QPoint(25, 25));
  EXPECT_EQ(dialog().pos(), corner);
}

TEST_F(ChatKeySettingWidgetEventsTest, IsNotMovedWithOtherButtonsButTheyTakeItElsewhere) {
  dialog().move(100, 100);
  sendMouse(dialog(), kPress, Qt::RightButton, {105, 107});
  sendMouse(dialog(), kMove, Qt::NoButton, {125, 117});
  EXPECT_EQ(dialog().pos(), QPoint(100, 100));
  sendMouse(dialog(), kPress, Qt::LeftButton, {105, 107});
  sendMouse(dialog(), kPress, Qt::RightButton, {110, 110});
  sendMouse(dialog(), kMove, Qt::NoButton, {111, 112});
  EXPECT_EQ(dialog().pos(), QPoint(101, 102));
}

TEST_F(ChatKeySettingWidgetEventsTest, IsMovedByItsLabelsButNotByItsFields) {
  dialog().move(100, 100);
  dialog().show();
  auto& label = find<QLabel>(dialog(), QStringLiteral("chatKey_1"));
  for (QWidget* const widget : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&phrase())}) {
    const QPoint place = widget->mapToGlobal({2, 2});
    const QPoint before = dialog().pos();
    sendMouse(*widget, kPress, Qt::LeftButton, place);
    sendMouse(*widget, kMove, Qt::NoButton, place + QPoint(9, 9));
    sendMouse(*widget, kRelease, Qt::LeftButton, place + QPoint(9, 9));
    EXPECT_EQ(dialog().pos() - before, widget == &label ? QPoint(9, 9) : QPoint());
  }
}

TEST_F(ChatKeySettingWidgetEventsTest, LetsItsFieldsTakeText) {
  const NoBoxes noBoxes;
  scheme().ChatWheelkey = KeyWord('Z', 0);
  dialog().show();
  QTest::keyClicks(&phrase(), QStringLiteral("gg wp"));
  QTest::keyClick(&phrase(), Qt::Key_Backspace);
  QTest::keyClick(&phrase(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(phrase().text().left(4), QStringLiteral("gg w"));
  EXPECT_EQ(scheme().ChatWheelkey, KeyWord('Z', 0));
}

TEST_F(ChatKeySettingWidgetEventsTest, CapturesKeysForWhomItFilters) {
  const NoBoxes noBoxes;
  scheme().HeroSkillKey[0] = KeyWord('Q', 0);
  const HotkeyScheme before = scheme();
  QLineEdit field;
  field.installEventFilter(&dialog());
  pressKey(field, Qt::Key_Q);
  EXPECT_EQ(field.text(), QStringLiteral("Q")) << "nobody asks whether it is used";
  pressKey(field, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(field.text(), QStringLiteral("CTRL +Alt +Q"));
  pressKey(field, Qt::Key_Backspace);
  EXPECT_EQ(field.text(), QString());
  field.setText(QStringLiteral("text"));
  pressKey(field, Qt::Key_Delete);
  EXPECT_EQ(field.text(), QString());
  pressKey(field, Qt::Key_Control);
  EXPECT_EQ(field.text(), QStringLiteral("CTRL +"));
  releaseKey(field, Qt::Key_Control);
  EXPECT_EQ(field.text(), QString());
  EXPECT_EQ(scheme(), before);
}

TEST_F(ChatKeySettingWidgetEventsTest, TakesTheChatWheelsKeyForAPaste) {
  scheme().ChatWheelkey = KeyWord('Z', 0);
  QLineEdit field(QStringLiteral("text"));
  field.installEventFilter(&dialog());
  expectWarning(dialog(), "IDS_KEY_USED", [&] { pressKey(field, Qt::Key_V, Qt::ControlModifier); });
  EXPECT_EQ(field.text(), QString());
  HotkeyScheme wanted;
  EXPECT_EQ(scheme(), wanted) << "no key is left";
}

}  // namespace
}  // namespace brennet::test
