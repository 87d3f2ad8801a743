// What the message box is and answers; clicks and keys are those of a player.

#include "ui/window/CMsgBox.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

#include "tests/ui/UiTest.h"

namespace brennet::test {
namespace {

constexpr auto kOk = QMessageBox::Ok;
constexpr auto kCancel = QMessageBox::Cancel;
constexpr QMessageBox::StandardButtons kBoth = kOk | kCancel;

// Asks with a box, calls `act` with it, and returns the answer.
QMessageBox::StandardButton ask(QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton defaultButton,
                                std::function<void(QMessageBox&)> act) {
  const auto box = whenBoxIsShown(std::move(act));
  return CMsgBox::showMessage(nullptr, QMessageBox::Warning, QStringLiteral("title"),
                              QStringLiteral("text"), buttons, defaultButton);
}

void click(QWidget* widget) {
  ASSERT_NE(widget, nullptr);
  QTest::mouseClick(widget, Qt::LeftButton);
}

QPushButton* closeButton(const QMessageBox& box) {
  return box.findChild<QPushButton*>(QStringLiteral("btnClose"));
}

TEST(CMsgBox, IsAFramelessDialogWithWhatItWasGiven) {
  const CMsgBox box(QMessageBox::Question, QStringLiteral("a title"), QStringLiteral("a text"),
                    kBoth, nullptr, Qt::Dialog | Qt::WindowStaysOnTopHint);
  EXPECT_EQ(box.icon(), QMessageBox::Question);
  EXPECT_EQ(box.windowTitle(), QStringLiteral("a title"));
  EXPECT_EQ(box.text(), QStringLiteral("a text"));
  EXPECT_EQ(box.standardButtons(), kBoth);
  EXPECT_TRUE(box.windowFlags().testFlag(Qt::FramelessWindowHint));
  EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(box.windowType(), Qt::Dialog);
}

TEST(CMsgBox, HasATitleStripWithTheTitleAndACloseButton) {
  CMsgBox box(QMessageBox::Warning, QStringLiteral("<b>title"), {});
  auto* const strip = box.findChild<QWidget*>(QStringLiteral("msgbox_title_widget"));
  ASSERT_NE(strip, nullptr);
  auto* const title = strip->findChild<QLabel*>(QStringLiteral("msgbox_title_label"));
  ASSERT_NE(title, nullptr);
  EXPECT_EQ(title->text(), QStringLiteral("<b>title"));
  EXPECT_EQ(title->textFormat(), Qt::PlainText);
  box.setWindowTitle(QStringLiteral("another"));
  EXPECT_EQ(title->text(), QStringLiteral("another"));
  ASSERT_EQ(closeButton(box)->parentWidget(), strip);
  EXPECT_EQ(closeButton(box)->size(), QSize(15, 15));
  EXPECT_EQ(closeButton(box)->minimumSize(), closeButton(box)->maximumSize());
  EXPECT_EQ(closeButton(box)->toolTip(), QStringLiteral("Close"));
}

TEST(CMsgBox, IsShownAsADialogOfFixedSize) {
  ask(kOk, QMessageBox::NoButton, [](QMessageBox& box) {
    EXPECT_NE(qobject_cast<CMsgBox*>(&box), nullptr);
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("title"));
    EXPECT_EQ(box.text(), QStringLiteral("text"));
    const Qt::WindowFlags wanted =
        Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::FramelessWindowHint;
    EXPECT_EQ(box.windowFlags() & wanted, wanted);
    click(box.button(kOk));
  });
}

TEST(CMsgBox, AnswersWithTheButtonThatWasClicked) {
  EXPECT_EQ(ask(kBoth, kOk, [](QMessageBox& box) { click(box.button(kOk)); }), 0x400);
  EXPECT_EQ(ask(kBoth, kOk, [](QMessageBox& box) { click(box.button(kCancel)); }), 0x400000);
}

TEST(CMsgBox, AnswersNothingWhenItsCloseButtonIsClicked) {
  EXPECT_EQ(ask(kBoth, kOk, [](QMessageBox& box) { click(closeButton(box)); }), 0);
  int rejections = 0;
  EXPECT_EQ(ask(kOk, kOk,
                [&](QMessageBox& box) {
                  QObject::connect(&box, &QDialog::rejected, [&] { ++rejections; });
                  click(closeButton(box));
                }),
            0);
  EXPECT_EQ(rejections, 1);
}

TEST(CMsgBox, AnswersCancelWhenItsRunFails) {
  EXPECT_EQ(ask(kOk, kOk, [](QMessageBox& box) { box.done(-1); }), kCancel);
}

TEST(CMsgBox, TakesReturnForTheDefaultButtonAndEscapeForCancel) {
  const auto press = [](Qt::Key key) {
    return [key](QMessageBox& box) { QTest::keyClick(&box, key); };
  };
  EXPECT_EQ(ask(kBoth, kOk, press(Qt::Key_Return)), kOk);
  EXPECT_EQ(ask(kBoth, kCancel, press(Qt::Key_Return)), kCancel);
  EXPECT_EQ(ask(kBoth, kOk, press(Qt::Key_Escape)), kCancel);
}

TEST(CMsgBox, NeverGivesItsCloseButtonTheFocusOrTheReturnKey) {
  ask(QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton, [](QMessageBox& box) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    for (int i = 0; i < 4; ++i) {
      ASSERT_NE(box.focusWidget(), nullptr);
      QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
      EXPECT_NE(box.focusWidget(), closeButton(box));
    }
    EXPECT_EQ(closeButton(box)->focusPolicy(), Qt::NoFocus);
    EXPECT_FALSE(closeButton(box)->isDefault());
    EXPECT_FALSE(closeButton(box)->autoDefault());
    click(closeButton(box));
  });
}

QMessageBox::StandardButton defaultOf(QMessageBox::StandardButtons buttons,
                                      QMessageBox::StandardButton defaultButton) {
  auto found = QMessageBox::NoButton;
  ask(buttons, defaultButton, [&](QMessageBox& box) {
    found = box.standardButton(box.defaultButton());
    click(closeButton(box));
  });
  return found;
}

TEST(CMsgBoxDefaultButton, IsTheGivenOneWhereTheBoxHasIt) {
  EXPECT_EQ(defaultOf(kBoth, kCancel), kCancel);
  EXPECT_EQ(defaultOf(kBoth, kOk), kOk);
  EXPECT_EQ(defaultOf(kBoth, QMessageBox::Retry), QMessageBox::NoButton);
}

TEST(CMsgBoxDefaultButton, IsElseTheFirstThatAccepts) {
  EXPECT_EQ(defaultOf(kBoth, QMessageBox::NoButton), kOk);
  EXPECT_EQ(defaultOf(kCancel | QMessageBox::Open | QMessageBox::Save, QMessageBox::NoButton),
            QMessageBox::Save);
  EXPECT_EQ(defaultOf(kCancel | QMessageBox::Yes, QMessageBox::NoButton), QMessageBox::NoButton);
}

struct Row {
  int bit;
  const char* text;
};

// In the order of the bits.
constexpr Row kTexts[] = {
    {0x400, "OK"},        {0x800, "Save"},       {0x1000, "SaveAll"},
    {0x2000, "Open"},     {0x4000, "Yes"},       {0x8000, "YesToAll"},
    {0x10000, "No"},      {0x20000, "NoToAll"},  {0x40000, "Abort"},
    {0x80000, "Retry"},   {0x100000, "Ignore"},  {0x200000, "Close"},
    {0x400000, "Cancel"}, {0x800000, "Discard"}, {0x1000000, "Help"},
    {0x2000000, "Apply"}, {0x4000000, "Reset"},  {0x8000000, "RestoreDefaults"},
};

TEST(CMsgBoxButtons, AreThoseOfTheMaskWithTheirTextsAndWidths) {
  for (const Row& row : kTexts) {
    const auto which = static_cast<QMessageBox::StandardButton>(row.bit);
    ask(which, QMessageBox::NoButton, [&](QMessageBox& box) {
      EXPECT_EQ(box.buttons().size(), 1) << row.text;
      const auto* const button = qobject_cast<QPushButton*>(box.button(which));
      ASSERT_NE(button, nullptr) << row.text;
      EXPECT_EQ(button->text(), QLatin1String(row.text));
      const int width = button->fontMetrics().boundingRect(button->text()).width() + 51;
      EXPECT_EQ(button->width(), width) << row.text;
      EXPECT_EQ(button->minimumWidth(), width) << row.text;
      EXPECT_EQ(button->maximumWidth(), width) << row.text;
      click(closeButton(box));
    });
  }
}

TEST(CMsgBoxButtons, AreAllThereWhenAllAreAskedFor) {
  QMessageBox::StandardButtons all;
  for (const Row& row : kTexts) all |= static_cast<QMessageBox::StandardButton>(row.bit);
  ask(all, QMessageBox::NoButton, [&](QMessageBox& box) {
    EXPECT_EQ(box.standardButtons(), all);
    click(closeButton(box));
  });
}

TEST(CMsgBoxButtons, AreWiderByTheirOwnMargins) {
  CMsgBox box(QMessageBox::Warning, {}, {}, kOk);
  box.setButtonTexts();
  auto* const button = qobject_cast<QPushButton*>(box.button(kOk));
  const int width = button->minimumWidth();
  button->setContentsMargins(3, 1, 4, 1);
  box.setButtonTexts();
  EXPECT_EQ(button->minimumWidth(), width + 7);
  auto* const layout = new QHBoxLayout(button);
  layout->setContentsMargins(5, 5, 5, 5);
  box.setButtonTexts();
  EXPECT_EQ(button->minimumWidth(), width + 7 + 10);
}

TEST(CMsgBoxButtons, HaveNoIcons) {
  CMsgBox box(QMessageBox::Warning, {}, {}, kOk);
  // On some desktops the buttons of boxes have icons.
  auto* const button = qobject_cast<QPushButton*>(box.button(kOk));
  button->setIcon(QPixmap(16, 16));
  box.setButtonTexts();
  EXPECT_TRUE(button->icon().isNull());
}

// Translates each text into its context and the text, so that tests see both.
class Catalogue : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* text, const char* /*comment*/,
                                  int /*number*/) const override {
    return QLatin1String(context) + QLatin1Char('/') + QLatin1String(text);
  }
};

TEST(CMsgBoxTexts, ComeFromTheHostsCatalogue) {
  Catalogue catalogue;
  QCoreApplication::installTranslator(&catalogue);
  ask(kBoth, kOk, [](QMessageBox& box) {
    EXPECT_EQ(box.button(kOk)->text(), QStringLiteral("QDialogButtonBox/OK"));
    EXPECT_EQ(box.button(kCancel)->text(), QStringLiteral("QDialogButtonBox/Cancel"));
    EXPECT_EQ(closeButton(box)->toolTip(), QStringLiteral("QDialogButtonBox/Close"));
    click(closeButton(box));
  });
  QCoreApplication::removeTranslator(&catalogue);
}

}  // namespace
}  // namespace brennet::test
