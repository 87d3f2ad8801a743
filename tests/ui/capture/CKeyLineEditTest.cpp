// Fields for keys that are too narrow for their text.

#include "ui/capture/CKeyLineEdit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTest>

#include "tests/ui/UiTest.h"
#include "ui/window/StyleSheet.h"

namespace brennet::test {
namespace {

class CKeyLineEditTest : public testing::Test {
 protected:
  CKeyLineEditTest() {
    loadStyleSheet(window, QStringLiteral(":/skin/war3key.qss"));
    window.resize(300, 80);
    window.show();
    field.resize(field.sizeHint());
    field.show();
  }

  void show(const char* text) { field.setText(QLatin1String(text)); }
  QString toolTip() { return toolTipOf(field); }
  QImage picture() { return field.grab().toImage(); }

  QWidget window;
  CKeyLineEdit field{&window};
};

TEST_F(CKeyLineEditTest, ShowsMostKeysWhole) {
  for (const char* const text : {"Q", "CTRL +Alt + W", "Alt + HOME", "NUM LOCK", ""}) {
    show(text);
    EXPECT_EQ(field.shownText(), QLatin1String(text));
    EXPECT_EQ(toolTip(), QString()) << text;
  }
}

TEST_F(CKeyLineEditTest, ShowsTheEndOfAKeyThatIsTooLong) {
  show("CTRL +Alt + PAGEDOWN");
  const QString shown = field.shownText();
  EXPECT_TRUE(shown.startsWith(QChar(0x2026))) << qPrintable(shown);
  EXPECT_TRUE(shown.endsWith(QLatin1String("PAGEDOWN"))) << qPrintable(shown);
  EXPECT_EQ(toolTip(), QStringLiteral("CTRL +Alt + PAGEDOWN"));
  EXPECT_EQ(field.text(), QStringLiteral("CTRL +Alt + PAGEDOWN")) << "all of it for who reads it";
}

TEST_F(CKeyLineEditTest, IsAsHighAsAFieldForText) {
  QLineEdit other(&window);
  other.show();
  EXPECT_EQ(field.sizeHint().height(), other.sizeHint().height());
}

TEST_F(CKeyLineEditTest, DrawsWhatItShows) {
  show("CTRL +Alt + PAGEDOWN");
  const QImage cut = picture();
  show("CTRL +Alt + PAGEUP");
  EXPECT_NE(picture(), cut);
  field.setText(QString());
  const QImage empty = picture();
  EXPECT_NE(empty, cut);
  // It has the frame of a line edit.
  for (const QPoint place : {QPoint(20, 0), QPoint(0, 10), QPoint(field.width() - 1, 10)}) {
    EXPECT_EQ(cut.pixel(place), empty.pixel(place));
  }
  field.resize(400, field.height());
  show("CTRL +Alt + PAGEDOWN");
  EXPECT_EQ(field.shownText(), field.text()) << "where there is room";
}

}  // namespace
}  // namespace brennet::test
