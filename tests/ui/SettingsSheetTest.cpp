// The style sheet of the settings dialogs on controls that have the names it looks for.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <vector>

#include "tests/ui/PixelContrast.h"
#include "ui/window/CPictureButton.h"
#include "ui/window/StyleSheet.h"

namespace brennet {
namespace {

constexpr QRgb kBelow = 0xFF1E242F;

class SettingsSheetTest : public testing::Test {
 protected:
  SettingsSheetTest() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(kBelow));
    window_.setPalette(palette);
    window_.resize(300, 200);
    EXPECT_TRUE(loadStyleSheet(window_, QStringLiteral(":/skin/war3key.qss")));
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    QTest::mouseMove(&window_, QPoint(299, 199));
  }

  // A control of that name, with the size that the sheet gives it.
  template <class Control>
  Control* make(const char* name) {
    auto* const control = new Control(&window_);
    control->setObjectName(QLatin1String(name));
    control->move(20, 20);
    control->show();
    control->resize(control->sizeHint());
    return control;
  }

  QImage pictureOf(const QWidget& control) {
    const QPixmap all = window_.grab(control.geometry());
    return all.toImage().convertToFormat(QImage::Format_RGB32);
  }
  // The middle of a small button, where its picture is: the mouse can hit more than is seen.
  QImage middleOf(const QWidget& control, QSize size) {
    const QRect all = control.rect();
    const QPoint corner((all.width() - size.width()) / 2, (all.height() - size.height()) / 2);
    return pictureOf(control).copy(QRect(corner, size));
  }

  QWidget window_;
};

struct PictureButton {
  const char* name;
  const char* picture;
  int height;  // of one state
  const char* hovered;
  int hoveredAt;
  const char* checked;
  int checkedAt;
};

const PictureButton kButtons[] = {
    {"btnSwichBasicSetting", "bg", 26, "bg", 26, "bg", 52},
    {"btnSwichAdvancedSetting", "bg", 26, "bg", 26, "bg", 52},
    {"btnSwichChatWheelSetting", "bg", 26, "bg", 26, "bg", 52},
    {"btnSwitchPlat", "btnSwitch_2", 28, "btnSwitch_1", 0, nullptr, 0},
    {"btnSwitchDota7", "btnSwitch_2", 28, "btnSwitch_1", 0, nullptr, 0},
    {"btnOrrerySetting", "box", 55, "box", 55, "box", 55},
    {"btnTalkSetting", "chat", 55, "chat", 55, "chat", 55},
    {"btnDota7Setting", "dota7", 55, "dota7", 55, "dota7", 55},
    {"chatHotkeyBtn", "chatHotKey_1", 55, "chatHotKey_2", 0, nullptr, 0},
    {"btn_skillcast_12", "auto", 13, nullptr, 0, "auto", 13},
    {"btn_goods_cast_7", "auto", 13, nullptr, 0, "auto", 13},
};

// One state of a picture, as the window shows it.
QImage state(const char* picture, int at, int height) {
  const QImage all(QStringLiteral(":/skin/image/%1.png").arg(QLatin1String(picture)));
  QImage expected(all.width(), height, QImage::Format_RGB32);
  expected.fill(kBelow);
  QPainter(&expected).drawImage(0, 0, all, 0, at, all.width(), height);
  return expected;
}

TEST_F(SettingsSheetTest, CutsTheStatesOfPicturesWithoutStretchingThem) {
  for (const PictureButton& row : kButtons) {
    auto* const button = make<QPushButton>(row.name);
    button->setCheckable(true);
    const QImage plain = state(row.picture, 0, row.height);
    EXPECT_TRUE(middleOf(*button, plain.size()) == plain) << row.name;
    if (row.hovered != nullptr) {
      QTest::mouseMove(button);
      EXPECT_TRUE(middleOf(*button, plain.size()) == state(row.hovered, row.hoveredAt, row.height))
          << row.name << " under the mouse";
      QTest::mouseMove(&window_, QPoint(299, 199));
    }
    button->setChecked(true);
    if (row.checked != nullptr) {
      EXPECT_TRUE(middleOf(*button, plain.size()) == state(row.checked, row.checkedAt, row.height))
          << row.name << " checked";
    }
    delete button;
  }
}

TEST_F(SettingsSheetTest, ShowsWhichPictureHasTheFocus) {
  QApplication::setActiveWindow(&window_);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  std::vector<const char*> names = {"btnClose"};
  for (const PictureButton& row : kButtons) names.push_back(row.name);
  for (const char* const name : names) {
    auto* const button = make<QPushButton>(name);
    button->setText(QStringLiteral("text"));
    button->setCheckable(true);
    for (const bool isChecked : {false, true}) {
      button->setChecked(isChecked);
      button->clearFocus();
      const QImage without = pictureOf(*button);
      button->setFocus();
      ASSERT_TRUE(button->hasFocus());
      const QImage with = pictureOf(*button);
      EXPECT_EQ(with.size(), without.size());
      // A large picture shows the focus by the same state as being checked.
      const bool isLitAlready = isChecked && button->width() == 55 && button->height() == 55;
      EXPECT_TRUE(isLitAlready || with != without) << name << (isChecked ? " checked" : "");
    }
    delete button;
  }
}

// The frame of the focus goes round the picture, which does not change.
TEST_F(SettingsSheetTest, KeepsTheStateOfASmallPictureWithTheFocus) {
  QApplication::setActiveWindow(&window_);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  struct {
    const char* name;
    const char* picture;
    int size;
    int checkedAt;
    int gap;  // between it and the frame
    QRgb frame;
  } const kRows[] = {{"btn_skillcast_12", "auto", 13, 13, 0, 0xFFFFFFFF},
                     {"btn_goods_cast_7", "auto", 13, 13, 0, 0xFFFFFFFF},
                     {"btnClose", "closebtn_4s", 10, 0, 1, 0xFF97B6E9},
                     {"btnCloseNotice", "closebtn_4s", 10, 0, 1, 0xFF97B6E9}};
  for (const auto& row : kRows) {
    auto* const button = make<QPushButton>(row.name);
    button->setCheckable(true);
    button->setFocus();
    for (const bool isChecked : {false, true}) {
      SCOPED_TRACE(std::string(row.name) + (isChecked ? " checked" : ""));
      button->setChecked(isChecked);
      const QSize size(row.size, row.size);
      EXPECT_TRUE(middleOf(*button, size) ==
                  state(row.picture, isChecked ? row.checkedAt : 0, row.size));
      const int end = row.size + 2 * row.gap + 1;  // of the frame
      const QImage framed = middleOf(*button, {end + 1, end + 1});
      const QImage around = middleOf(*button, {end + 3, end + 3});
      for (int i = 2; i < end - 1; ++i) {
        EXPECT_EQ(framed.pixel(i, 0), row.frame);
        EXPECT_EQ(framed.pixel(i, end), row.frame);
        EXPECT_EQ(framed.pixel(0, i), row.frame);
        EXPECT_EQ(framed.pixel(end, i), row.frame);
        EXPECT_EQ(around.pixel(i, 0), kBelow) << "nothing of the picture is outside";
        EXPECT_EQ(around.pixel(i, end + 2), kBelow);
      }
    }
    delete button;
  }
}

// The room around a small picture is there to be hit, and stays empty.
TEST_F(SettingsSheetTest, DrawsNothingAroundSmallPicturesWithTheFocus) {
  QApplication::setActiveWindow(&window_);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  struct {
    const char* name;
    int size;  // with the frame of the focus
  } const kRows[] = {{"btnClose", 14}, {"btnCloseNotice", 14}, {"btn_skillcast_1", 15}};
  for (const auto& row : kRows) {
    auto* const button = make<QPushButton>(row.name);
    button->setFocus();
    const QImage picture = pictureOf(*button);
    QRegion drawn;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixel(x, y) != kBelow) drawn += QRect(x, y, 1, 1);
      }
    }
    EXPECT_EQ(drawn.boundingRect().size(), QSize(row.size, row.size)) << row.name;
    delete button;
  }
}

// Nobody has to aim: whatever can be clicked is at least 24 pixels high.
TEST_F(SettingsSheetTest, MakesEverythingLargeEnoughToBeHit) {
  constexpr int kLeast = 24;
  for (const char* const name : {"btnClose", "btn_skillcast_1", "btn_goods_cast_1", "btnOther"}) {
    auto* const button = make<CPictureButton>(name);
    EXPECT_GE(button->height(), kLeast) << name;
    const QSignalSpy clicks(button, &QPushButton::clicked);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().topLeft());
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().bottomRight());
    EXPECT_EQ(clicks.size(), 2) << name;
  }
  EXPECT_GE(make<QLineEdit>("edtOther")->height(), kLeast);
  EXPECT_GE(make<QCheckBox>("chkOther")->height(), kLeast);
  EXPECT_GE(make<QRadioButton>("optOther")->height(), kLeast);
  EXPECT_GE(make<QComboBox>("cmbOther")->height(), kLeast);
  EXPECT_GE(make<QLabel>("lblResetToDefaultSetting")->height(), kLeast);
}

// A border can be seen if its contrast with both sides is at least three.
TEST_F(SettingsSheetTest, DrawsBordersOfFieldsThatCanBeSeen) {
  auto* const field = make<QLineEdit>("edtSkill_1");
  field->resize(100, field->sizeHint().height());
  const QRgb border = pictureOf(*field).pixel(50, 0);
  EXPECT_GE(test::contrast(border, kBelow), 3.0);
  EXPECT_GE(test::contrast(border, pictureOf(*field).pixel(50, 3)), 3.0);
}

TEST_F(SettingsSheetTest, ColoursTexts) {
  struct Row {
    const char* name;
    QRgb color;
  };
  for (const Row& row : {Row{"lblOther", 0xFF909FB0}, Row{"lblTitle", 0xFFB1D9D9},
                         Row{"lblResetToDefaultSetting", 0xFF909FB0}}) {
    const auto* const label = make<QLabel>(row.name);
    EXPECT_EQ(label->palette().color(QPalette::WindowText).rgb(), row.color) << row.name;
  }
  EXPECT_EQ(make<QLabel>("lblTitle")->font().pixelSize(), 14);
}

TEST_F(SettingsSheetTest, DrawsPushButtons) {
  auto* const button = make<QPushButton>("btnOther");
  button->resize(100, 40);
  EXPECT_EQ(pictureOf(*button).pixel(50, 0), 0xFF6886B4);
  EXPECT_EQ(pictureOf(*button).pixel(50, 20), 0xFF435777);
  button->setDown(true);
  EXPECT_EQ(pictureOf(*button).pixel(50, 0), 0xFF414E6D);
  EXPECT_EQ(pictureOf(*button).pixel(50, 20), 0xFF2D3851);
}

TEST_F(SettingsSheetTest, DrawsComboBoxes) {
  auto* const box = make<QComboBox>("cmbHotkeySetting");
  box->resize(100, box->sizeHint().height());
  EXPECT_EQ(box->height(), 26 + 2);
  const QImage picture = pictureOf(*box);
  EXPECT_EQ(picture.pixel(50, 0), 0xFF6886B4);
  EXPECT_EQ(picture.pixel(10, 10), 0xFFFFFFFF);
  EXPECT_EQ(picture.pixel(100 - 2, 2), 0xFF414E6E);
  EXPECT_EQ(picture.pixel(100 - 1 - 27, 2), 0xFF414E6E);
  EXPECT_EQ(picture.pixel(100 - 1 - 28, 2), 0xFFFFFFFF);
}

TEST_F(SettingsSheetTest, DrawsScrollBarsOfEightPixels) {
  for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
    auto* const bar = make<QScrollBar>("bar");
    bar->setOrientation(orientation);
    const bool isVertical = orientation == Qt::Vertical;
    EXPECT_EQ(isVertical ? bar->sizeHint().width() : bar->sizeHint().height(), 8);
    bar->resize(isVertical ? QSize(8, 100) : QSize(100, 8));
    bar->setPageStep(50);
    const QImage picture = pictureOf(*bar);
    EXPECT_EQ(picture.pixel(isVertical ? QPoint(4, 10) : QPoint(10, 4)), 0xFF5C6B98);
    EXPECT_EQ(picture.pixel(isVertical ? QPoint(4, 98) : QPoint(98, 4)), 0xFF2F384E);
    delete bar;
  }
}

TEST_F(SettingsSheetTest, DrawsABorderAroundGroupsButThree) {
  for (const char* const name :
       {"grpOther", "grpNumKeypadHotkey", "grpCommonOptions", "grpMouseWheelKeys"}) {
    auto* const group = make<QGroupBox>(name);
    group->resize(100, 60);
    const QRgb expected = qstrcmp(name, "grpOther") == 0 ? 0xFF526E7A : kBelow;
    EXPECT_EQ(pictureOf(*group).pixel(50, 59), expected) << name;
    delete group;
  }
}

}  // namespace
}  // namespace brennet
