// Whether the texts of the skin can be read: measured in pictures of real controls.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>
#include <functional>

#include "ui/CMsgBox.h"
#include "ui/pages/COrrerySettingDlg.h"

namespace brennet {
namespace {

// What the guidelines for accessible pages ask for texts of that size. Nothing asks it of buttons
// that are pressed, for as long as the mouse button is down, or disabled.
constexpr double kReadable = 4.5;
// Nor of a push button under the mouse, whose text was read before: there it has what large texts
// and marks must have.
constexpr double kDiscernible = 3.0;

using SetText = std::function<void(const QString&)>;

double luminance(QRgb color) {
  const auto linear = [](int part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
         0.0722 * linear(qBlue(color));
}

double contrast(QRgb one, QRgb other) {
  const auto [darker, lighter] = std::minmax(luminance(one), luminance(other));
  return (lighter + 0.05) / (darker + 0.05);
}

QImage pictureOf(QWidget& control) {
  const QRect place(control.mapTo(control.window(), QPoint()), control.size());
  return control.window()->grab(place).toImage().convertToFormat(QImage::Format_RGB32);
}

// Of the text's own colour, which only the inside of letters has, with all that is below letters.
double contrastOfText(const QImage& with, const QImage& without) {
  EXPECT_EQ(with.size(), without.size());
  double best = 1;
  QRgb text = 0;
  for (int y = 0; y < with.height(); ++y) {
    for (int x = 0; x < with.width(); ++x) {
      const double here = contrast(with.pixel(x, y), without.pixel(x, y));
      if (here > best) text = with.pixel(x, y);
      best = std::max(best, here);
    }
  }
  double worst = best;
  for (int y = 0; y < with.height(); ++y) {
    for (int x = 0; x < with.width(); ++x) {
      const QRgb below = without.pixel(x, y);
      if (with.pixel(x, y) != below) worst = std::min(worst, contrast(text, below));
    }
  }
  return worst;
}

double contrastIn(QWidget& control, const SetText& setText) {
  setText(QStringLiteral("MHI"));
  const QImage with = pictureOf(control);
  setText(QString());
  return contrastOfText(with, pictureOf(control));
}

class Contrast : public testing::Test {
 protected:
  Contrast() {
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    QApplication::setActiveWindow(&window_);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  // A control over those of the window, with letters that are thick enough to have an inside.
  template <class Control>
  Control& make(const char* name) {
    auto* const control = new Control(&window_);
    control->setObjectName(QLatin1String(name));
    control->setStyleSheet(QStringLiteral("font-size: 24px;"));
    control->move(4, 4);
    control->resize(120, 44);
    control->show();
    control->raise();
    return *control;
  }

  template <class Control>
  double contrastOf(const char* name, const char* property = "text") {
    return contrastOf(make<Control>(name), property);
  }
  static double contrastOf(QWidget& control, const char* property = "text") {
    return contrastIn(control,
                      [&](const QString& text) { control.setProperty(property, text); });
  }

  COrrerySettingDlg window_;
};

TEST_F(Contrast, OfLabels) {
  for (const char* const name :
       {"lblOther", "lblTitle", "lblResetToDefaultSetting", "lblUseRecommendedSetting"}) {
    EXPECT_GE(contrastOf<QLabel>(name), kReadable) << name;
  }
  EXPECT_GE(contrastOf<QCheckBox>("box"), kReadable);
  EXPECT_GE(contrastOf<QRadioButton>("choice"), kReadable);
  EXPECT_GE(contrastOf<QGroupBox>("group", "title"), kReadable);
}

TEST_F(Contrast, OfFields) {
  EXPECT_GE(contrastOf<QLineEdit>("edtOther"), kReadable);
  auto& field = make<QLineEdit>("edtFocus");
  field.setFocus();
  ASSERT_TRUE(field.hasFocus());
  EXPECT_GE(contrastOf(field), kReadable) << "with the focus";
  EXPECT_GE(contrastIn(field,
                       [&](const QString& text) {
                         field.setText(text.isEmpty() ? QStringLiteral("   ") : text);
                         field.selectAll();
                       }),
            1.0);
}

TEST_F(Contrast, OfButtons) {
  for (const char* const name : {"btnOther", "btnSwichBasicSetting", "btnSwitchPlat"}) {
    auto& button = make<QPushButton>(name);
    EXPECT_GE(contrastOf(button), kReadable) << name;
    button.setFocus();
    EXPECT_GE(contrastOf(button), kReadable) << name << " with the focus";
    button.setAttribute(Qt::WA_UnderMouse);
    EXPECT_GE(contrastOf(button), kReadable) << name << " under the mouse";
  }
  auto& tab = make<QPushButton>("btnSwichBasicSetting");
  tab.setCheckable(true);
  tab.setChecked(true);
  EXPECT_GE(contrastOf(tab), kReadable) << "checked";
}

}  // namespace
}  // namespace brennet
