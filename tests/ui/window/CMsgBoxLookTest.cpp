// What the message box looks like. The tests look at colours at certain places, because whole
// pictures change with the fonts.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTest>

#include "tests/ui/UiTest.h"
#include "ui/window/CMsgBox.h"
#include "ui/window/StyleSheet.h"

namespace brennet::test {
namespace {

constexpr QRgb kBorder = 0xFF6886B4;
constexpr QRgb kStrip = 0xFF20304C;
constexpr QRgb kPage = 0xFF2F384E;
constexpr QRgb kPanel = 0xFFA9A9A9;

// A box as it is shown, with a text that is wide enough for its title.
class ShownBox {
 public:
  explicit ShownBox(QWidget* parent = nullptr)
      : box_(QMessageBox::Warning, QStringLiteral("title"),
             QStringLiteral("a text that is long enough to be wider than the buttons below it"),
             QMessageBox::Ok | QMessageBox::Cancel, parent) {
    box_.setButtonTexts();
    box_.setWindowModality(Qt::ApplicationModal);
    box_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&box_));
  }

  [[nodiscard]] CMsgBox& box() { return box_; }
  [[nodiscard]] QImage picture() { return box_.grab().toImage(); }

  // Where the part of that name is in the box.
  [[nodiscard]] QRect rectOf(const char* name) const {
    const auto* const part = box_.findChild<QWidget*>(QLatin1String(name));
    if (part == nullptr) return {};
    return {part->mapTo(&box_, QPoint(0, 0)), part->size()};
  }

 private:
  CMsgBox box_;
};

TEST(CMsgBoxLook, IsABorderOfTwoPixelsAroundIt) {
  ShownBox shown;
  const QImage picture = shown.picture();
  const int right = picture.width() - 1;
  const int bottom = picture.height() - 1;
  for (int i = 0; i < 2; ++i) {
    for (int x = 0; x <= right; ++x) {
      ASSERT_EQ(picture.pixel(x, i), kBorder) << "x " << x << ", from above " << i;
      ASSERT_EQ(picture.pixel(x, bottom - i), kBorder) << "x " << x << ", from below " << i;
    }
    for (int y = 0; y <= bottom; ++y) {
      ASSERT_EQ(picture.pixel(i, y), kBorder) << "y " << y << ", from the left " << i;
      ASSERT_EQ(picture.pixel(right - i, y), kBorder) << "y " << y << ", from the right " << i;
    }
  }
}

TEST(CMsgBoxLook, IsATitleStripOf30PixelsOverItsWholeWidth) {
  ShownBox shown;
  EXPECT_EQ(shown.rectOf("msgbox_title_widget"), QRect(0, 0, shown.box().width(), 30));
  const QImage picture = shown.picture();
  const int right = picture.width() - 3;
  for (const QPoint place : {QPoint(2, 2), QPoint(right, 2), QPoint(2, 29), QPoint(right, 29)}) {
    EXPECT_EQ(picture.pixel(place), kStrip) << place.x() << ", " << place.y();
  }
  EXPECT_EQ(picture.pixel(2, 30), kPage);
  EXPECT_EQ(picture.pixel(right, 30), kPage);
}

// The box can be dragged by its upper 30 pixels, however tall the strip is.
TEST(CMsgBoxLook, HasATallerStripWhereTheLettersOfTheTitleAreTaller) {
  const QFont font = QApplication::font();
  QFont large = font;
  large.setPointSizeF(9.0 * 3);
  QApplication::setFont(large);
  {
    ShownBox shown;
    const QRect strip = shown.rectOf("msgbox_title_widget");
    const QRect title = shown.rectOf("msgbox_title_label");
    EXPECT_GT(strip.height(), 30);
    EXPECT_EQ(strip.topLeft(), QPoint(0, 0));
    EXPECT_EQ(strip.width(), shown.box().width());
    EXPECT_TRUE(strip.contains(title));
    EXPECT_GE(title.height(), QFontMetrics(large).height());
    EXPECT_GT(shown.rectOf("qt_msgbox_label").top(), strip.bottom());
    EXPECT_EQ(shown.picture().pixel(2, strip.bottom()), kStrip);
    EXPECT_EQ(shown.picture().pixel(2, strip.bottom() + 1), kPage);
  }
  QApplication::setFont(font);
}

TEST(CMsgBoxLook, IsAPanelFromTheButtonsToItsBorder) {
  ShownBox shown;
  const QImage picture = shown.picture();
  const int top = shown.rectOf("qt_msgbox_buttonbox").top();
  const int right = picture.width() - 3;
  const int bottom = picture.height() - 3;
  EXPECT_EQ(picture.pixel(2, top - 1), kPage);
  EXPECT_EQ(picture.pixel(right, top - 1), kPage);
  for (const QPoint place :
       {QPoint(2, top), QPoint(right, top), QPoint(2, bottom), QPoint(right, bottom)}) {
    EXPECT_EQ(picture.pixel(place), kPanel) << place.x() << ", " << place.y();
  }
}

TEST(CMsgBoxLook, LeavesTheMarginsOfTheBoxOutOfThePanel) {
  ShownBox shown;
  shown.box().setContentsMargins(5, 0, 7, 9);
  const QImage picture = shown.picture();
  const int top = shown.rectOf("qt_msgbox_buttonbox").top();
  const int right = picture.width() - 1 - 7;
  const int bottom = picture.height() - 1 - 9;
  EXPECT_EQ(picture.pixel(5, top), kPanel);
  EXPECT_EQ(picture.pixel(right, bottom), kPanel);
  EXPECT_EQ(picture.pixel(4, top), kPage);
  EXPECT_EQ(picture.pixel(right + 1, bottom), kPage);
  EXPECT_EQ(picture.pixel(right, bottom + 1), kPage);
}

TEST(CMsgBoxLook, IsWhiteTextOnDark) {
  ShownBox shown;
  for (const char* const name : {"msgbox_title_label", "qt_msgbox_label"}) {
    const auto* const label = shown.box().findChild<QLabel*>(QLatin1String(name));
    ASSERT_NE(label, nullptr) << name;
    EXPECT_EQ(label->palette().color(label->foregroundRole()), QColor(Qt::white)) << name;
  }
}

TEST(CMsgBoxLook, KeepsItsPartsApart) {
  ShownBox shown;
  const QRect strip = shown.rectOf("msgbox_title_widget");
  const QRect text = shown.rectOf("qt_msgbox_label");
  const QRect buttons = shown.rectOf("qt_msgbox_buttonbox");
  EXPECT_GT(text.top(), strip.bottom());
  EXPECT_GT(buttons.top(), text.bottom());
  EXPECT_TRUE(shown.box().rect().contains(buttons));
  EXPECT_TRUE(strip.contains(shown.rectOf("btnClose")));
}

// QMessageBox makes a new layout for it.
TEST(CMsgBoxLook, KeepsItsStripWhenItsIconChanges) {
  CMsgBox box(QMessageBox::Warning, QStringLiteral("title"), QStringLiteral("text"));
  box.setIcon(QMessageBox::Critical);
  box.setInformativeText(QStringLiteral("more"));
  box.show();
  const auto* const strip = box.findChild<QWidget*>(QStringLiteral("msgbox_title_widget"));
  EXPECT_EQ(strip->geometry(), QRect(0, 0, box.width(), 30));
  EXPECT_GE(box.findChild<QWidget*>(QStringLiteral("qt_msgbox_label"))->y(), 30);
}

TEST(CMsgBoxLook, IsTheSameInADialogWithTheOtherSheet) {
  QWidget dialog;
  ASSERT_TRUE(loadStyleSheet(dialog, QStringLiteral(":/skin/war3key.qss")));
  ShownBox alone;
  const QImage expected = alone.picture();
  alone.box().hide();
  ShownBox below(&dialog);
  EXPECT_TRUE(below.picture() == expected);
}

// The picture has four states, and none is stretched.
TEST(CMsgBoxLookCloseButton, ShowsItsStates) {
  ShownBox shown;
  const QImage states(QStringLiteral(":/skin/image/closebtn_4s.png"));
  auto* const button = shown.box().findChild<QPushButton*>(QStringLiteral("btnClose"));
  const auto expectState = [&](int offset, QColor below, const char* name) {
    QImage expected(10, 10, QImage::Format_RGB32);
    expected.fill(below);
    QPainter(&expected).drawImage(0, 0, states, 0, offset, 10, 10);
    const QRect part(shown.rectOf("btnClose").topLeft() + QPoint(2, 2), QSize(10, 10));
    EXPECT_TRUE(shown.picture().convertToFormat(QImage::Format_RGB32).copy(part) == expected)
        << name;
  };
  expectState(0, QColor(kStrip), "normal");
  QTest::mouseMove(button);
  expectState(10, QColor(0x41, 0x4E, 0x6C), "hover");
  QTest::mousePress(button, Qt::LeftButton);
  expectState(20, QColor(0x41, 0x4E, 0x6C), "pressed");
  QTest::mouseMove(&shown.box(), QPoint(20, 50));
  button->setDown(false);
  // Outside the button, so that nothing is clicked and the next test finds no mouse button down.
  QTest::mouseRelease(&shown.box(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 50));
  button->setEnabled(false);
  expectState(30, QColor(kStrip), "disabled");
}

}  // namespace
}  // namespace brennet::test
