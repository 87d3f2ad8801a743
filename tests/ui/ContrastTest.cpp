// Whether the texts of the skin are readable, measured in pictures of real controls.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <functional>

#include "tests/ui/PixelContrast.h"
#include "tests/ui/ScopedColors.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

// The contrast that accessibility guidelines ask for texts of this size. They do not ask it of
// disabled buttons, nor of buttons while the mouse holds them down.
constexpr double kReadable = 4.5;

using SetText = std::function<void(const QString&)>;

// The lowest contrast between the text's own colour, which only the inside of letters has, and
// anything that the letters cover.
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

double contrastIn(QWidget& control, const SetText& setText, const char* blank = "") {
  setText(QStringLiteral("MHI"));
  const QImage with = pictureOf(control);
  setText(QString::fromUtf8(blank));
  return contrastOfText(with, pictureOf(control));
}

double contrastOf(QWidget& control) {
  return contrastIn(control, [&](const QString& text) { control.setProperty("text", text); });
}

class Contrast : public testing::TestWithParam<Colors> {
 protected:
  Contrast() {
    // Letters are to cover nothing but the background.
    delete window_.layout();
    for (QWidget* const part : window_.findChildren<QWidget*>()) part->hide();
    window_.setFixedSize(300, 200);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    QApplication::setActiveWindow(&window_);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  // A control in front of all others, with letters thick enough to have an inside.
  template <class Control>
  Control& make(const char* name) {
    auto* const control = new Control(&window_);
    control->setObjectName(QLatin1String(name));
    control->setStyleSheet(QStringLiteral("font: bold 16px;"));
    control->move(4, 4);
    control->resize(120, 44);
    control->show();
    control->raise();
    return *control;
  }

  const ScopedColors colors_{GetParam()};
  COrrerySettingDlg window_;
};

TEST_P(Contrast, OfLabels) {
  for (const char* const name :
       {"lblOther", "lblTitle", "lblResetToDefaultSetting", "lblUseRecommendedSetting"}) {
    EXPECT_GE(contrastOf(make<QLabel>(name)), kReadable) << name;
  }
  EXPECT_GE(contrastOf(make<QCheckBox>("box")), kReadable);
  EXPECT_GE(contrastOf(make<QRadioButton>("choice")), kReadable);
  auto& group = make<QGroupBox>("group");
  const SetText setTitle = [&](const QString& text) { group.setTitle(text); };
  // As wide as the title, which interrupts the border.
  EXPECT_GE(contrastIn(group, setTitle, "\u2003\u2003\u2003"), kReadable);
}

TEST_P(Contrast, OfFields) {
  auto& field = make<QLineEdit>("edtOther");
  EXPECT_GE(contrastOf(field), kReadable);
  field.setReadOnly(true);  // without the cursor
  field.setFocus();
  ASSERT_TRUE(field.hasFocus());
  EXPECT_GE(contrastOf(field), kReadable) << "with the focus";
}

TEST_P(Contrast, OfTheChatWheel) {
  auto& wheel = make<QWidget>("ChatWheel");
  auto* const field = new QLineEdit(&wheel);
  field->setGeometry(0, 0, 120, 44);
  field->show();
  EXPECT_GE(contrastOf(*field), kReadable);
  field->setReadOnly(true);
  field->setFocus();
  EXPECT_GE(contrastOf(*field), kReadable) << "with the focus";
}

TEST_P(Contrast, OfButtons) {
  for (const char* const name : {"btnOther", "btnSwichBasicSetting", "btnSwitchPlat"}) {
    auto& button = make<QPushButton>(name);
    EXPECT_GE(contrastOf(button), kReadable) << name;
    button.setFocus();
    EXPECT_GE(contrastOf(button), kReadable) << name << " with the focus";
    delete &button;
  }
  auto& tab = make<QPushButton>("btnSwichChatWheelSetting");
  tab.setCheckable(true);
  tab.setChecked(true);
  EXPECT_GE(contrastOf(tab), kReadable) << "checked";
}

TEST_P(Contrast, UnderTheMouse) {
  for (const char* const name : {"btnOther", "btnSwichBasicSetting", "btnSwitchPlat"}) {
    auto& button = make<QPushButton>(name);
    QTest::mouseMove(&button);
    const double found = contrastOf(button);
    EXPECT_GE(found, kReadable) << name;
    button.setFocus();
    EXPECT_GE(contrastOf(button), kReadable) << name << " with the focus";
    button.clearFocus();
    button.setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_NE(found, contrastOf(button)) << name << " looks as it does without the mouse";
    QTest::mouseMove(&window_, QPoint(299, 199));
    delete &button;
  }
}

TEST_P(Contrast, OfListsToChooseFrom) {
  auto& box = make<QComboBox>("cmbOther");
  box.addItem(QString());
  const SetText setText = [&](const QString& text) { box.setItemText(0, text); };
  EXPECT_GE(contrastIn(box, setText), kReadable);
  box.showPopup();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(box.view()->window()));
  for (const bool isSelected : {false, true}) {
    box.view()->setCurrentIndex(isSelected ? box.model()->index(0, 0) : QModelIndex());
    EXPECT_GE(contrastIn(*box.view(), setText), kReadable) << isSelected;
  }
  box.hidePopup();
}

TEST_P(Contrast, OfTrees) {
  auto& tree = make<QTreeWidget>("tree");
  tree.setAlternatingRowColors(true);
  tree.resize(200, 160);
  auto* const branch = new QTreeWidgetItem(&tree);
  auto* const leaf = new QTreeWidgetItem(branch);
  auto* const other = new QTreeWidgetItem(branch);
  tree.expandAll();
  tree.headerItem()->setText(0, QString());
  for (QTreeWidgetItem* const item : {tree.headerItem(), branch, leaf, other}) {
    const SetText setText = [&](const QString& text) { item->setText(0, text); };
    EXPECT_GE(contrastIn(tree, setText), kReadable) << "of " << tree.indexOfTopLevelItem(item);
    if (item == tree.headerItem()) continue;
    tree.setCurrentItem(item);
    EXPECT_GE(contrastIn(tree, setText), kReadable) << "selected";
  }
}

class ContrastOfTheBox : public testing::TestWithParam<Colors> {
 protected:
  ContrastOfTheBox() {
    box_.setStyleSheet(box_.styleSheet() +
                       QStringLiteral("QLabel, QPushButton { font: bold 16px; }"));
    box_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&box_));
    box_.layout()->setEnabled(false);  // parts stay in place when their texts change
  }

  const ScopedColors colors_{GetParam()};
  CMsgBox box_{QMessageBox::Warning, QStringLiteral("title"), QStringLiteral("a text"),
               QMessageBox::Ok | QMessageBox::Cancel};
};

TEST_P(ContrastOfTheBox, IsThatOfTexts) {
  int texts = 0;
  for (QWidget* const part : box_.findChildren<QWidget*>()) {
    const QString text = part->property("text").toString();
    if (text.isEmpty() || !part->isVisible()) continue;
    ++texts;
    EXPECT_GE(contrastOf(*part), kReadable) << qPrintable(text);
  }
  EXPECT_EQ(texts, 4) << "the title, the text and two buttons";
}

TEST_P(ContrastOfTheBox, UnderTheMouse) {
  QAbstractButton* const button = box_.button(QMessageBox::Cancel);
  QTest::mouseMove(button);
  EXPECT_GE(contrastOf(*button), kReadable);
  button->setFocus();
  EXPECT_GE(contrastOf(*button), kReadable) << "with the focus";
}

constexpr auto nameOf = [](const auto& test) { return std::string(test.param.name); };
INSTANTIATE_TEST_SUITE_P(In, Contrast, testing::ValuesIn(kColors), nameOf);
INSTANTIATE_TEST_SUITE_P(In, ContrastOfTheBox, testing::ValuesIn(kColors), nameOf);

}  // namespace
}  // namespace brennet::test
