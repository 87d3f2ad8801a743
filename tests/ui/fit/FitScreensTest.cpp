// All windows on the screens that players have: the whole window and its buttons are inside, and
// everything can be reached.

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

#include "model/LoadReport.h"
#include "tests/ui/fit/FitWindows.h"
#include "tests/ui/pages/PageChecks.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/keymap/SchemeKeyMap.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/pages/KeyMapWindow.h"
#include "ui/pages/SchemeTransferWindow.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

// The most that the settings may take at 100 %: what a laptop's task bar leaves.
constexpr QSize kMost(1240, 660);

const std::vector<const char*> kEnds = {"btnOK", "btnCancel"};

using FitScreensTest = FitWindows;

TEST_P(FitScreensTest, TakesNoMoreThanALaptopLeaves) {
  const TestScreens screens({{{1920, 1080}}});
  QSize sizes[2];
  for (const bool isDota7 : {false, true}) {
    SCOPED_TRACE(isDota7 ? "DotA 7" : "platform");
    const auto dialog = showDialog(isDota7);
    sizes[isDota7] = dialog->size();
    constexpr char kHint[] =
        "make room for what was added: a shorter text, or other rows and columns";
    EXPECT_LE(dialog->width(), kMost.width()) << kHint;
    EXPECT_LE(dialog->height(), kMost.height()) << kHint;
    EXPECT_FALSE(isScrolled(*dialog));
    expectNothingIsCut(*dialog);
  }
  EXPECT_EQ(sizes[0], sizes[1]) << "nothing jumps from one mode to the other";
}

TEST_P(FitScreensTest, ComesUpWholeOnEachScreen) {
  for (const ScreenRow& row : playersScreens()) {
    SCOPED_TRACE(row.name);
    const TestScreens screens({row.shape});
    for (const bool isDota7 : {false, true}) {
      SCOPED_TRACE(isDota7 ? "DotA 7" : "platform");
      const auto dialog = showDialog(isDota7);
      EXPECT_EQ(screens.at(0).availableGeometry().size(), row.shape.available());
      expectInside(*dialog, screens.at(0).availableGeometry(), kEnds);
      expectNothingIsCut(*dialog);
      if (isScrolled(*dialog)) expectFocusIsShown(*dialog);
    }
  }
}

// Where a host does not let Qt scale, only the letters grow, and take more pixels.
TEST_P(FitScreensTest, ComesUpWholeWithLargeLetters) {
  const TestScreens screens({{{1366, 768}}});
  for (const int percent : {150, 250}) {
    SCOPED_TRACE(percent);
    QFont font = QApplication::font();
    font.setPointSizeF(9.0 * percent / 100);
    QApplication::setFont(font);
    for (const bool isDota7 : {false, true}) {
      const auto dialog = showDialog(isDota7);
      expectInside(*dialog, screens.at(0).availableGeometry(), kEnds);
      expectFocusIsShown(*dialog);
    }
  }
}

// The notice below the title takes more lines where the window is narrow.
TEST_P(FitScreensTest, ComesUpWholeWithANotice) {
  LoadReport report;
  for (int i = 0; i < 4; ++i) {
    DroppedKey& dropped = report.droppedKeys.emplace_back();
    dropped.scheme = 1;
    dropped.slot = {SettingId::SecretaryKey, static_cast<std::uint8_t>(i % 3)};
    dropped.key = KeyWord('A', KeyWord::kAlt);
    dropped.conflict = KeyConflict{KeyConflict::Reason::Held, dropped.slot};
  }
  constexpr int kHeight = 500;
  for (int width = 560; width <= 1280; width += 40) {
    SCOPED_TRACE(width);
    const TestScreens screens({{{width, kHeight}}});
    CHotkeySettingDlg dialog(config, manager);
    dialog.tellDroppedKeys(report);
    showWindow(dialog);
    expectInside(dialog, screens.at(0).availableGeometry(), kEnds);
    const auto& notice = *dialog.findChild<QLabel*>(QStringLiteral("lblNotice"));
    EXPECT_GE(notice.height(), notice.heightForWidth(notice.width()));
    dialog.findChild<QPushButton*>(QStringLiteral("btnCloseNotice"))->click();
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.height(), screens.at(0).availableGeometry().height())
        << "the page has the room that becomes free";
  }
}

TEST_P(FitScreensTest, ComesUpWholeInEachOtherWindow) {
  for (const ScreenRow& row : playersScreens()) {
    SCOPED_TRACE(row.name);
    const TestScreens screens({row.shape});
    const QRect available = screens.at(0).availableGeometry();
    const auto check = [&](QWidget& window, const std::vector<const char*>& buttons) {
      SCOPED_TRACE(window.metaObject()->className());
      showWindow(window);
      expectInside(window, available, buttons);
      expectNothingIsCut(window);
      window.hide();
    };
    // In the corner, where there is no room for other windows around the dialog's middle.
    const auto dialog = showDialog(false);
    dialog->move(available.bottomRight() - QPoint(20, 20));
    check(*dialog->findChild<ChatKeySettingWidget*>(), kEnds);
    check(*dialog->findChild<Dota7ChatKeySettingWidget*>(), kEnds);
    COrrerySettingDlg orrery;
    check(orrery, {"btnClose"});
    KeyMapWindow keyMap(dialog.get());
    keyMap.setMap(keyMapOf(config.scheme()), false);
    check(keyMap, {"btnClose", "btnSavePicture"});
    const QSize wanted = keyMap.layout()->totalSizeHint();
    EXPECT_EQ(keyMap.size(), wanted.boundedTo(available.size())) << "as large as it would be";
    HotkeyScheme other;
    for (std::uint8_t i = 0; i < kHeroSkills; ++i) other.HeroSkillKey[i] = KeyWord('A' + i, 0);
    other.ShowFBlood = KeyWord('A', 0);
    SchemeTransferWindow preview(QStringLiteral("Copy"), config.scheme(),
                                 {{QStringLiteral("2"), transferOf(config.scheme(), other)}},
                                 dialog.get());
    check(preview, {"btnClose", "btnOK", "btnCancel"});
    CMsgBox box(QMessageBox::Warning, QCoreApplication::translate("QObject", "IDS_TITLE"),
                QCoreApplication::translate("QObject", "IDS_GROUP_KEY_USED"), QMessageBox::Ok,
                dialog.get());
    box.setButtonTexts();
    box.button(QMessageBox::Ok)->setObjectName(QStringLiteral("btnOK"));
    check(box, {"btnClose", "btnOK"});
  }
}

// The header has room for the links on any screen, but for its heading only where there is enough.
TEST_P(FitScreensTest, SparesItsHeadingWhereItIsNarrow) {
  for (const int width : {560, 640, 720, 800, 1280}) {
    SCOPED_TRACE(width);
    const TestScreens screens({{{width, 700}}});
    const auto dialog = showDialog(false);
    dialog->onSwitchDota7KeySettingDlg();
    settleLayouts();
    expectInside(*dialog, screens.at(0).availableGeometry(), {"btnSwitchPlat", "lblKeyMap"});
    dialog->onSwitchPlatKeySettingDlg();
    settleLayouts();
    expectInside(*dialog, screens.at(0).availableGeometry(), {"lblKeyMap"});
    const auto widget = [&](const char* name) {
      return dialog->findChild<QWidget*>(QLatin1String(name));
    };
    for (const char* const name : {"lblResetToDefaultSetting", "lblKeyMap", "btnClose"}) {
      EXPECT_TRUE((QRegion(widget(name)->rect()) - widget(name)->visibleRegion()).isEmpty())
          << name;
    }
    if (width == 1280) {
      EXPECT_TRUE(widget("lblHeader")->isVisible());
    }
  }
}

// Which of the two headers is the wider one depends on the font.
TEST_P(FitScreensTest, FitsAgainWhenTheOtherModeHasTheWiderHeader) {
  const TestScreens screens({{{1280, 700}}});
  const auto dialog = showDialog(true);
  auto& button = *dialog->findChild<QPushButton*>(QStringLiteral("btnSwitchPlat"));
  const auto& header = *dialog->findChild<QBoxLayout*>(QStringLiteral("layHeader"));
  const int others = header.sizeHint().width() - button.width();
  dialog->onSwitchPlatKeySettingDlg();
  EXPECT_EQ(header.direction(), QBoxLayout::LeftToRight);
  // Just too wide for the screen in one row.
  button.setStyleSheet(QStringLiteral("min-width: %1px; max-width: %1px;").arg(1280 - others));
  dialog->onSwitchDota7KeySettingDlg();
  settleLayouts();
  EXPECT_EQ(header.direction(), QBoxLayout::TopToBottom);
  expectInside(*dialog, screens.at(0).availableGeometry(), {"btnSwitchPlat", "lblKeyMap"});
  // Too wide even then, but for the heading.
  const int heading = dialog->findChild<QLabel*>(QStringLiteral("lblHeader"))->width();
  button.setStyleSheet(QStringLiteral("min-width: %1px; max-width: %1px;").arg(1280 - heading));
  dialog->onSwitchDota7KeySettingDlg();
  settleLayouts();
  EXPECT_FALSE(dialog->findChild<QLabel*>(QStringLiteral("lblHeader"))->isVisible());
  expectInside(*dialog, screens.at(0).availableGeometry(), {"btnSwitchPlat", "lblKeyMap"});
}

TEST_P(FitScreensTest, ScrollsTheChatWindowsWhereTheirLettersAreLarge) {
  const TestScreens screens({{{1024, 768}}});
  QFont font = QApplication::font();
  font.setPointSizeF(26);
  QApplication::setFont(font);
  const auto dialog = showDialog(false);
  for (QWidget* const window :
       std::initializer_list<QWidget*>{dialog->findChild<ChatKeySettingWidget*>(),
                                       dialog->findChild<Dota7ChatKeySettingWidget*>()}) {
    SCOPED_TRACE(window->metaObject()->className());
    showWindow(*window);
    expectInside(*window, screens.at(0).availableGeometry(), kEnds);
    EXPECT_TRUE(isScrolled(*window));
    expectFocusIsShown(*window);
  }
}

// The middle between the first and the last row of a picture that have anything light in them,
// as a distance down from the middle of the picture.
double middleOfLight(const QImage& picture) {
  int first = picture.height();
  int last = -1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (qGray(picture.pixel(x, y)) < 90) continue;
      first = std::min(first, y);
      last = y;
    }
  }
  EXPECT_LE(first, last) << "there is nothing";
  return (first + last - picture.height() + 1) / 2.0;
}

TEST_P(FitScreensTest, HasItsSquaresOnTheLineOfTheirTexts) {
  const TestScreens screens({{{1920, 1080}}});
  const auto dialog = showDialog(false);
  dialog->findChild<QWidget*>(QStringLiteral("titleWidget"))->setFocus();
  for (const char* const name : {"chkLockMouse", "chkHideUI", "chkSkillHero"}) {
    const auto& box = *dialog->findChild<QCheckBox*>(QLatin1String(name));
    const QImage picture =
        dialog->grab(QRect(box.mapTo(dialog.get(), QPoint()), box.size())).toImage();
    constexpr int kSquare = 17;  // and a little more
    const QImage square = picture.copy(0, 0, kSquare, picture.height());
    const QImage text =
        picture.copy(kSquare + 1, 0, picture.width() - kSquare - 1, picture.height());
    EXPECT_NEAR(middleOfLight(square), middleOfLight(text), 1.5) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Fit, FitScreensTest, testing::Values("en", "zh_CN"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace brennet::test
