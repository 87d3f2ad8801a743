// Windows that are dragged: what is at a point, what Windows is told, what a press does.

#include "ui/window/WindowDrag.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include "ui/window/CMsgBox.h"

namespace brennet {
namespace {

// A window with one widget of each kind, side by side on a form.
class WindowDragTest : public testing::Test {
 protected:
  WindowDragTest() {
    window_.setWindowFlags(Qt::FramelessWindowHint);
    window_.setGeometry(50, 60, 900, 200);
    form_.setGeometry(0, 0, 800, 200);
    const QList<QWidget*> parts = {&strip_,  &label_, &link_, &group_,
                                   &button_, &check_, &edit_, &area_};
    for (int i = 0; i < parts.size(); ++i) parts[i]->setGeometry(i * 100, 0, 90, 90);
    auto* const row = new QHBoxLayout(&area_);
    row->addSpacing(45);
    row->addWidget(&inArea_);
    QFont font = link_.font();
    font.setUnderline(true);
    link_.setFont(font);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
  }

  [[nodiscard]] DraggableWindow dragged(DragArea area = DragArea::EmptyPlaces) const {
    return {window_, area, &strip_, &form_};
  }
  [[nodiscard]] static QPoint middleOf(const QWidget& widget) {
    return widget.mapToGlobal(widget.rect().center());
  }
  [[nodiscard]] Under under(const QWidget& widget) const {
    return underPoint(dragged(), middleOf(widget));
  }

  QWidget window_;
  QWidget form_{&window_};
  QWidget strip_{&form_};
  QLabel label_{&form_};
  QLabel link_{&form_};
  QGroupBox group_{&form_};
  QPushButton button_{&form_};
  QCheckBox check_{&form_};
  QLineEdit edit_{&form_};
  QWidget area_{&form_};  // holds others, and shows nothing
  QCheckBox inArea_{&area_};
};

TEST_F(WindowDragTest, KnowsWhatIsUnderThePoint) {
  EXPECT_EQ(under(strip_), Under::Frame);
  EXPECT_EQ(under(label_), Under::Label);
  EXPECT_EQ(under(link_), Under::Link);
  EXPECT_EQ(under(group_), Under::GroupBox);
  EXPECT_EQ(under(button_), Under::PushButton);
  EXPECT_EQ(under(check_), Under::Control);
  EXPECT_EQ(under(edit_), Under::Control);
  EXPECT_EQ(under(area_), Under::Frame) << "beside what it holds";
  EXPECT_EQ(under(inArea_), Under::Control);
  const QPoint onTheForm = form_.mapToGlobal({400, 150});
  EXPECT_EQ(underPoint(dragged(), onTheForm), Under::Frame);
  const QPoint besideTheForm = window_.mapToGlobal({850, 100});
  EXPECT_EQ(underPoint(dragged(), besideTheForm), Under::Nothing);
}

TEST_F(WindowDragTest, CountsOtherWidgetsAsControls) {
  EXPECT_EQ(underPoint({window_}, middleOf(strip_)), Under::Control);
}

TEST_F(WindowDragTest, KnowsAGroupBoxAlsoWhereItHoldsOthers) {
  const QVBoxLayout inGroup(&group_);
  EXPECT_EQ(under(group_), Under::GroupBox);
}

TEST_F(WindowDragTest, IsDraggedByItsEmptyPlacesAndSizedByItsMargins) {
  EXPECT_EQ(hitAt(dragged(), middleOf(label_)), Hit::Caption);
  EXPECT_EQ(hitAt(dragged(), middleOf(area_)), Hit::Caption);
  EXPECT_EQ(hitAt(dragged(), middleOf(link_)), Hit::Client);
  EXPECT_EQ(hitAt(dragged(), middleOf(edit_)), Hit::Client);
  EXPECT_EQ(hitAt(dragged(), {49, 100}), Hit::NotHandled);
  EXPECT_EQ(hitAt(dragged(), {50, 60}), Hit::Caption);
  window_.setContentsMargins(3, 3, 3, 3);
  EXPECT_EQ(hitAt(dragged(), {50, 60}), Hit::TopLeft);
  EXPECT_EQ(hitAt(dragged(), {949, 259}), Hit::BottomRight);
}

TEST(WindowDragPoint, IsScaledFromTheCornerOfItsScreen) {
  EXPECT_EQ(fromNative({300, 200}, {0, 0}, 1), QPoint(300, 200));
  EXPECT_EQ(fromNative({300, 200}, {0, 0}, 2), QPoint(150, 100));
  EXPECT_EQ(fromNative({2220, 200}, {1920, 0}, 1.5), QPoint(2120, 133));
  EXPECT_EQ(fromNative({-1880, -40}, {-1920, -80}, 2), QPoint(-1900, -60));
}

// A message of Windows to this window.
class WindowDragMessages : public WindowDragTest {
 protected:
  [[nodiscard]] NativeMessage messageAt(QPoint point) const {
    const auto low = static_cast<std::uint16_t>(point.x());
    const auto high = static_cast<std::uint32_t>(static_cast<std::uint16_t>(point.y()));
    return {.window = reinterpret_cast<void*>(window_.internalWinId()),
            .message = 132,
            .lParam = static_cast<std::intptr_t>(high << 16 | low)};
  }
  bool answer(const NativeMessage& message, const char* type = "windows_generic_MSG") {
    result_ = 77;
    return answerHitTest(dragged(), type, &message, &result_);
  }

  long result_ = 0;
};

TEST_F(WindowDragMessages, ThatAsksWhatAPointIsIsAnswered) {
  EXPECT_TRUE(answer(messageAt(middleOf(label_))));
  EXPECT_EQ(result_, 2);
  EXPECT_TRUE(answer(messageAt(middleOf(button_))));
  EXPECT_EQ(result_, 1);
}

TEST_F(WindowDragMessages, HasTwoSignedHalves) {
  window_.move(-400, -50);
  EXPECT_TRUE(answer(messageAt(middleOf(button_))));
  EXPECT_EQ(result_, 1);
  EXPECT_TRUE(answer(messageAt(middleOf(label_))));
  EXPECT_EQ(result_, 2);
}

TEST_F(WindowDragMessages, ThatIsNotForTheWindowIsLeftAlone) {
  NativeMessage message = messageAt(middleOf(label_));
  EXPECT_FALSE(answer(message, "xcb_generic_event_t"));
  message.message = 133;
  EXPECT_FALSE(answer(message));
  message = messageAt(middleOf(label_));
  message.window = nullptr;
  EXPECT_FALSE(answer(message));
  EXPECT_FALSE(answer(messageAt({49, 100})));
  EXPECT_EQ(result_, 77);
}

TEST_F(WindowDragMessages, ToAWindowThatIsNotMadeYetIsLeftAlone) {
  const QWidget other;
  NativeMessage message = messageAt({0, 0});
  message.window = nullptr;
  EXPECT_FALSE(answerHitTest({other}, "windows_generic_MSG", &message, &result_));
}

bool isTaken(QWidget& window, QPoint place, Qt::MouseButton button) {
  QMouseEvent press(QEvent::MouseButtonPress, place, window.mapToGlobal(place), button, button,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &press);
  return press.isAccepted();
}

class WindowDragOfABox : public testing::Test {
 protected:
  WindowDragOfABox() {
    box_.setButtonTexts();
    box_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&box_));
  }

  CMsgBox box_{QMessageBox::Warning, QStringLiteral("title"),
               QStringLiteral("a text of some length, with a second half"), QMessageBox::Ok};
};

TEST_F(WindowDragOfABox, TakesALeftPressInItsTopStripAlone) {
  EXPECT_TRUE(isTaken(box_, {20, 0}, Qt::LeftButton));
  EXPECT_TRUE(isTaken(box_, {20, 30}, Qt::LeftButton));
  EXPECT_FALSE(isTaken(box_, {20, 31}, Qt::LeftButton));
  EXPECT_FALSE(isTaken(box_, {20, 10}, Qt::RightButton));
}

// Sends a mouse event to the window; `held` are the buttons that are down.
void sendMouse(QWidget& window, QEvent::Type type, QPoint place, Qt::MouseButtons held) {
  const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, place, window.mapToGlobal(place), button, held, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &event);
}

// Whether the window waits for the mouse to move; once a drag has begun, it does not.
bool waits(const QWidget& window) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return !window.windowHandle()
              ->findChildren<QObject*>(QString(), Qt::FindDirectChildrenOnly)
              .isEmpty();
}

TEST_F(WindowDragOfABox, GoesWithTheMouseWhenThatMoves) {
  const QPoint place(20, 10);
  ASSERT_FALSE(waits(box_));
  sendMouse(box_, QEvent::MouseButtonPress, place, Qt::LeftButton);
  EXPECT_TRUE(waits(box_)) << "a press alone moves nothing";
  sendMouse(box_, QEvent::MouseMove, place + QPoint(1, 1), Qt::LeftButton);
  EXPECT_TRUE(waits(box_)) << "a hand shakes";
  sendMouse(box_, QEvent::MouseMove, place + QPoint(30, 0), Qt::LeftButton);
  EXPECT_FALSE(waits(box_));
}

TEST_F(WindowDragOfABox, StaysAfterAClick) {
  const QPoint place(20, 10);
  sendMouse(box_, QEvent::MouseButtonPress, place, Qt::LeftButton);
  sendMouse(box_, QEvent::MouseButtonRelease, place, Qt::NoButton);
  EXPECT_FALSE(waits(box_));
  // The release may have gone to another program.
  sendMouse(box_, QEvent::MouseButtonPress, place, Qt::LeftButton);
  sendMouse(box_, QEvent::MouseMove, place + QPoint(30, 0), Qt::NoButton);
  EXPECT_FALSE(waits(box_));
}

TEST_F(WindowDragOfABox, AnswersWindowsLikewise) {
  struct Opened : CMsgBox {
    using CMsgBox::nativeEvent;
  };
  const auto answer = [&](QPoint place) -> long {
    const QPoint point = box_.mapToGlobal(place);
    NativeMessage message{.window = reinterpret_cast<void*>(box_.internalWinId()),
                          .message = 132,
                          .lParam = point.y() << 16 | point.x()};
    long result = 77;
    const bool isAnswered =
        (box_.*(&Opened::nativeEvent))("windows_generic_MSG", &message, &result);
    EXPECT_EQ(isAnswered, result != 77);
    return result;
  };
  const auto* const close = box_.findChild<QPushButton*>(QStringLiteral("btnClose"));
  EXPECT_EQ(answer({20, 10}), 2);
  EXPECT_EQ(answer(close->mapTo(&box_, {7, 7})), 1);
  EXPECT_EQ(answer({20, 31}), 1);
  EXPECT_EQ(answer({box_.width(), 10}), 77);
}

}  // namespace
}  // namespace brennet
