// Where the settings dialog can be dragged: what it answers Windows, and which presses it takes.

#include <QCheckBox>
#include <QGroupBox>
#include <QMouseEvent>
#include <QPushButton>

#include "tests/ui/SettingsDialogTest.h"
#include "ui/window/WindowDrag.h"

namespace brennet::test {
namespace {

class CHotkeySettingDlgDragTest : public SettingsDialog {
 protected:
  CHotkeySettingDlgDragTest() {
    dialog->move(30, 40);
    dialog->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  }

  static QPoint middleOf(const QWidget& widget) {
    return widget.mapTo(widget.window(), widget.rect().center());
  }
  // What the dialog answers Windows; 77 if it gives no answer.
  long answer(QPoint place, unsigned messageNumber = 132) {
    struct Opened : CHotkeySettingDlg {
      using CHotkeySettingDlg::nativeEvent;
    };
    const QPoint point = dialog->mapToGlobal(place);
    NativeMessage message{.window = reinterpret_cast<void*>(dialog->internalWinId()),
                          .message = messageNumber,
                          .lParam = point.y() << 16 | point.x()};
    long result = 77;
    const bool isAnswered =
        (dialog.get()->*(&Opened::nativeEvent))("windows_generic_MSG", &message, &result);
    EXPECT_EQ(isAnswered, result != 77);
    return result;
  }
  bool isTaken(QPoint place, Qt::MouseButton button) {
    QMouseEvent press(QEvent::MouseButtonPress, place, dialog->mapToGlobal(place), button, button,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &press);
    return press.isAccepted();
  }
  // A point between two groups of the page that is shown.
  QPoint emptyPlace() {
    const auto& one = on<CBasicSetting7Widget, QGroupBox>("grpHeroSkill");
    const auto& other = on<CBasicSetting7Widget, QGroupBox>("grpKeyModify");
    const QPoint end = one.mapTo(dialog.get(), one.rect().bottomLeft());
    const QPoint start = other.mapTo(dialog.get(), other.rect().topLeft());
    EXPECT_GT(start.y() - end.y(), 2) << "there is room between them";
    return {end.x() + 20, (end.y() + start.y()) / 2};
  }
};

TEST_F(CHotkeySettingDlgDragTest, AnswersWindows) {
  const int strip = middleOf(find<QWidget>("titleWidget")).y();
  struct {
    const char* what;
    QPoint place;
    long answer;
  } const kRows[] = {
      {"the title strip", {dialog->width() / 2, strip}, 2},
      {"the title", middleOf(find<QLabel>("lblTitle")), 2},
      {"the close button", middleOf(find<QPushButton>("btnClose")), 1},
      {"the link", middleOf(resetLink()), 1},
      {"OK", middleOf(find<QPushButton>("btnOK")), 1},
      {"a check box", middleOf(find<QCheckBox>("chkUseHotkeySettings")), 1},
      {"a key field", middleOf(skill(1)), 1},
      {"a group box",
       on<CBasicSetting7Widget, QGroupBox>("grpHeroSkill").mapTo(dialog.get(), QPoint(12, 3)), 2},
      {"between groups", emptyPlace(), 2},
      {"beside OK", middleOf(find<QPushButton>("btnOK")) - QPoint(200, 0), 2},
      {"outside", {-1, 20}, 77},
  };
  for (const auto& row : kRows) EXPECT_EQ(answer(row.place), row.answer) << row.what;
  EXPECT_EQ(answer({dialog->width() / 2, strip}, 133), 77) << "another message";
}

TEST_F(CHotkeySettingDlgDragTest, TakesLeftPressesOnEmptyPlaces) {
  const int strip = middleOf(find<QWidget>("titleWidget")).y();
  const QPoint inStrip(dialog->width() / 2, strip);
  EXPECT_TRUE(isTaken(inStrip, Qt::LeftButton));
  EXPECT_FALSE(isTaken(inStrip, Qt::RightButton));
  EXPECT_TRUE(isTaken(emptyPlace(), Qt::LeftButton));
  EXPECT_TRUE(isTaken(middleOf(find<QLabel>("lblTitle")), Qt::LeftButton));
  EXPECT_FALSE(isTaken(middleOf(resetLink()), Qt::LeftButton));
  EXPECT_FALSE(isTaken(middleOf(find<QPushButton>("btnOK")), Qt::LeftButton));
}

}  // namespace
}  // namespace brennet::test
