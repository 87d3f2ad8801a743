#include "ui/keymap/CKeyMapView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/keymap/KeyMapPainter.h"

namespace brennet::test {
namespace {

// The view between two fields, with the keyboard.
class CKeyMapViewTest : public testing::Test {
 protected:
  CKeyMapViewTest() {
    auto* const layout = new QVBoxLayout(&window);
    for (QWidget* const widget : {static_cast<QWidget*>(&before), static_cast<QWidget*>(&view),
                                  static_cast<QWidget*>(&behind)}) {
      layout->addWidget(widget);
    }
    view.setMap(map, false);
    QObject::connect(&view, &CKeyMapView::pressed, [this](int code, int modifiers) {
      pressed.push_back({static_cast<MapCode>(code), static_cast<std::uint8_t>(modifiers)});
    });
    QObject::connect(&view, &CKeyMapView::clicked, [this](int code, int modifiers) {
      clicked.push_back({static_cast<MapCode>(code), static_cast<std::uint8_t>(modifiers)});
    });
    QObject::connect(&view, &CKeyMapView::layerShown,
                     [this](int layer) { layers.push_back(layer); });
    window.show();
    QApplication::setActiveWindow(&window);
    view.setFocus();
  }
  ~CKeyMapViewTest() override {
    for (QWidget* const widget : {static_cast<QWidget*>(&before), static_cast<QWidget*>(&view),
                                  static_cast<QWidget*>(&behind)}) {
      widget->setParent(nullptr);
    }
  }

  void turn(int eighths) {
    const QPointF place(view.rect().center());
    QWheelEvent event(place, view.mapToGlobal(place.toPoint()), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &event);
  }

  KeyMap map = {{.press = {'Q', KeyWord::kAlt}, .tag = QStringLiteral("S1")}};
  QWidget window;
  QLineEdit before;
  CKeyMapView view;
  QLineEdit behind;
  std::vector<MapPress> pressed;
  std::vector<MapPress> clicked;
  std::vector<int> layers;
};

TEST_F(CKeyMapViewTest, TellsEachPress) {
  pressKey(view, Qt::Key_Q);
  releaseKey(view, Qt::Key_Q);
  pressKey(view, Qt::Key_F5, Qt::ControlModifier);
  pressKey(view, Qt::Key_Escape);
  releaseKey(view, Qt::Key_Escape);
  pressKey(view, Qt::Key_Return);
  releaseKey(view, Qt::Key_Return);
  pressKey(view, Qt::Key_Tab);
  releaseKey(view, Qt::Key_Tab);
  EXPECT_EQ(pressed, (std::vector<MapPress>{
                         {'Q', 0}, {0x74, KeyWord::kCtrl}, {0x1B, 0}, {0x0D, 0}, {0x09, 0}}));
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(view.hasFocus());
}

TEST_F(CKeyMapViewTest, TellsARepeatedKeyOnce) {
  pressKey(view, Qt::Key_Q);
  holdKey(view, Qt::Key_Q);
  holdKey(view, Qt::Key_Q);
  EXPECT_EQ(pressed.size(), 1U);
}

TEST_F(CKeyMapViewTest, LetsShiftTabGoOn) {
  pressKey(view, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(behind.hasFocus());
  EXPECT_TRUE(pressed.empty());
}

TEST_F(CKeyMapViewTest, ShowsTheLayerOfHeldKeys) {
  view.setLayer(KeyWord::kCtrl);
  layers.clear();
  pressKey(view, Qt::Key_Alt);
  pressKey(view, Qt::Key_Control, Qt::AltModifier);
  releaseKey(view, Qt::Key_Alt, Qt::ControlModifier);
  releaseKey(view, Qt::Key_Control);
  EXPECT_EQ(layers, (std::vector<int>{KeyWord::kAlt, KeyWord::kCtrl | KeyWord::kAlt, KeyWord::kCtrl,
                                      KeyWord::kCtrl}));
  EXPECT_TRUE(pressed.empty()) << "they only choose the layer";
}

TEST_F(CKeyMapViewTest, ForgetsHeldKeysWithoutTheKeyboard) {
  pressKey(view, Qt::Key_Alt);
  before.setFocus();
  EXPECT_EQ(layers, (std::vector<int>{KeyWord::kAlt, 0}));
}

// As in the DotA 7 mode.
TEST_F(CKeyMapViewTest, TellsAModifierThatIsAKey) {
  const KeyMap keys = {{.press = {0x11, 0}, .tag = QStringLiteral("O1")}};
  view.setMap(keys, true);
  pressKey(view, Qt::Key_Control);
  releaseKey(view, Qt::Key_Control);
  pressKey(view, Qt::Key_Alt);
  releaseKey(view, Qt::Key_Alt);
  EXPECT_EQ(pressed, (std::vector<MapPress>{{0x11, 0}}));
  view.setMap(map, false);
}

TEST_F(CKeyMapViewTest, TellsTheWheel) {
  turn(120);
  turn(-120);
  turn(-60);
  turn(-60);
  turn(360);
  QTest::mouseClick(&view, Qt::MiddleButton);
  EXPECT_EQ(pressed, (std::vector<MapPress>{{kWheelUp, 0},
                                            {kWheelDown, 0},
                                            {kWheelDown, 0},
                                            {kWheelUp, 0},
                                            {kWheelUp, 0},
                                            {kWheelUp, 0},
                                            {kWheelClick, 0}}));
}

TEST_F(CKeyMapViewTest, TellsClicksWithTheLayerThatIsShown) {
  QTest::mouseClick(&view, Qt::LeftButton, {}, view.placeOf('G').center());
  view.setLayer(KeyWord::kAlt);
  QTest::mouseClick(&view, Qt::LeftButton, {}, view.placeOf('Q').center());
  QTest::mouseClick(&view, Qt::RightButton, {}, view.placeOf('Q').center());
  QTest::mouseClick(&view, Qt::LeftButton, {}, view.rect().bottomRight());
  EXPECT_EQ(clicked, (std::vector<MapPress>{{'G', 0}, {'Q', KeyWord::kAlt}}));
  EXPECT_TRUE(pressed.empty());
}

TEST_F(CKeyMapViewTest, ShowsWhatIsPressedAndThatItHasTheKeyboard) {
  const QImage first = view.grab().toImage();
  pressKey(view, Qt::Key_G);
  releaseKey(view, Qt::Key_G);
  const QImage lit = view.grab().toImage();
  EXPECT_NE(first, lit);
  before.setFocus();
  EXPECT_NE(view.grab().toImage(), lit);
}

TEST_F(CKeyMapViewTest, HasAToolTipForEachKey) {
  const QPoint place = view.placeOf('G').center();
  QHelpEvent event(QEvent::ToolTip, place, view.mapToGlobal(place));
  EXPECT_TRUE(QApplication::sendEvent(&view, &event));
  EXPECT_FALSE(toolTipOf(view).isEmpty());
}

TEST_F(CKeyMapViewTest, HasNoPlaceForAKeyThatIsNotThere) {
  EXPECT_TRUE(view.placeOf(0xFE).isEmpty());
}

}  // namespace
}  // namespace brennet::test
