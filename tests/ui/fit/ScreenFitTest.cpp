// On which screen a window comes up, and what becomes of it when screens change.

#include "ui/window/ScreenFit.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "tests/ui/SettingsDialogTest.h"
#include "tests/ui/screens/TestScreens.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/ChatKeySettingWidget.h"

namespace brennet::test {
namespace {

TEST(ScreenFitCorner, StaysWhereItIsInside) {
  const QRect area(100, 50, 800, 600);
  EXPECT_EQ(cornerInside(area, {200, 100}, {300, 300}), QPoint(300, 300));
  EXPECT_EQ(cornerInside(area, {200, 100}, {100, 50}), QPoint(100, 50));
  EXPECT_EQ(cornerInside(area, {200, 100}, {700, 550}), QPoint(700, 550));
}

TEST(ScreenFitCorner, IsMovedAsLittleAsPossible) {
  const QRect area(100, 50, 800, 600);
  EXPECT_EQ(cornerInside(area, {200, 100}, {701, 551}), QPoint(700, 550));
  EXPECT_EQ(cornerInside(area, {200, 100}, {99, 49}), QPoint(100, 50));
  EXPECT_EQ(cornerInside(area, {200, 100}, {-5000, 300}), QPoint(100, 300));
}

TEST(ScreenFitCorner, ShowsTheTitleOfAWindowThatIsTooLarge) {
  const QRect area(100, 50, 800, 600);
  EXPECT_EQ(cornerInside(area, {900, 700}, {300, 300}), QPoint(100, 50));
  EXPECT_EQ(cornerInside(area, {800, 600}, {300, 300}), QPoint(100, 50));
}

// A desk with three screens side by side.
class ScreenFitOnADesk : public SettingsDialog {
 protected:
  enum Place { kMiddle, kRight, kLeft };

  explicit ScreenFitOnADesk(
      const QVector<ScreenShape>& shapes = {{{1920, 1080}},
                                            {{1366, 768}, 100, {1920, 100}},
                                            {{1280, 1024}, 100, {-1280, -80}}})
      : screens(shapes) {
    dialog.reset();
  }

  // Shows the host's window with its middle on that screen.
  void showHost(Place place) {
    host.resize(600, 400);
    host.move(screens.at(place).geometry().center() - host.rect().center());
    host.show();
    QApplication::setActiveWindow(&host);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  }
  [[nodiscard]] QRect available(Place place) const { return screens.at(place).availableGeometry(); }
  void expectDialogIn(const QRect& area) const {
    EXPECT_TRUE(area.contains(dialog->frameGeometry()))
        << dialog->x() << ", " << dialog->y() << ": " << dialog->width() << " x "
        << dialog->height();
  }

  TestScreens screens;
  QWidget host{nullptr, Qt::FramelessWindowHint};
};

TEST_F(ScreenFitOnADesk, ComesUpOverTheHost) {
  for (const Place place : {kMiddle, kRight, kLeft}) {
    SCOPED_TRACE(place);
    showHost(place);
    dialog->show();
    expectDialogIn(available(place));
    const QPoint aside = dialog->geometry().center() - host.geometry().center();
    EXPECT_LE(aside.manhattanLength(), 50) << "in the middle of the host, but for the task bar";
    dialog.reset();
    host.hide();
  }
}

TEST_F(ScreenFitOnADesk, ComesUpInsideThoughTheHostIsInTheCorner) {
  showHost(kRight);
  host.move(screens.at(kRight).geometry().bottomRight() - host.rect().center());
  dialog->show();
  expectDialogIn(available(kRight));
}

TEST_F(ScreenFitOnADesk, ComesUpInTheMiddleOfTheScreenOfAHostThatIsMinimized) {
  showHost(kMiddle);
  host.move(screens.at(kMiddle).geometry().topLeft());
  host.showMinimized();
  QApplication::setActiveWindow(&host);
  dialog->show();
  expectDialogIn(available(kMiddle));
  const QPoint aside = dialog->geometry().center() - available(kMiddle).center();
  EXPECT_LE(aside.manhattanLength(), 2);
}

TEST_F(ScreenFitOnADesk, ComesUpSomewhereWithoutAHost) {
  dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  dialog->show();
  expectDialogIn(available(kMiddle));
}

TEST_F(ScreenFitOnADesk, StaysWhereThePlayerHasPutIt) {
  showHost(kMiddle);
  dialog->move(available(kRight).topLeft() + QPoint(7, 0));
  dialog->show();
  EXPECT_EQ(dialog->pos(), available(kRight).topLeft() + QPoint(7, 0));
}

// A drag is done by the system, and Qt does not count it as a move.
TEST_F(ScreenFitOnADesk, StaysWhereItWasDraggedToWhenItIsMinimizedMeanwhile) {
  showHost(kMiddle);
  dialog->show();
  QCoreApplication::processEvents();
  const QPoint place = available(kMiddle).topLeft() + QPoint(7, 9);
  dialog->windowHandle()->setPosition(place);
  QCoreApplication::processEvents();
  ASSERT_EQ(dialog->pos(), place);
  dialog->showMinimized();
  QCoreApplication::processEvents();
  dialog->showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog->pos(), place);
}

TEST_F(ScreenFitOnADesk, GoesToAScreenThatIsThereWhenItsOwnIsTakenAway) {
  showHost(kRight);
  dialog->show();
  expectDialogIn(available(kRight));
  screens.setAvailable(kMiddle, {60, 40, 1000, 500});
  screens.unplug(kRight);
  QTest::qWait(1);
  ASSERT_TRUE(dialog->isVisible());
  expectDialogIn(available(kMiddle));
}

TEST_F(ScreenFitOnADesk, GivesWayToALargerTaskBar) {
  showHost(kRight);
  dialog->show();
  screens.setAvailable(kRight, {60, 0, 900, 500});
  QCoreApplication::processEvents();
  const QRect left(screens.at(kRight).geometry().topLeft() + QPoint(60, 0), QSize(900, 500));
  ASSERT_EQ(available(kRight), left);
  expectDialogIn(left);
  screens.setAvailable(kRight, {0, 0, 1366, 720});
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog->size(), dialog->sizeHint()) << "and has its whole size again";
  EXPECT_GT(dialog->height(), 500);
}

TEST_F(ScreenFitOnADesk, ComesUpOverTheHostEachTime) {
  showHost(kRight);
  dialog->show();
  // Making room for a task bar is no move by the player.
  screens.setAvailable(kRight, {0, 0, 1366, 500});
  QCoreApplication::processEvents();
  dialog->hide();
  screens.setAvailable(kRight, {0, 0, 1366, 700});
  QCoreApplication::processEvents();
  host.move(available(kMiddle).center() - host.rect().center());
  QApplication::setActiveWindow(&host);
  dialog->show();
  expectDialogIn(available(kMiddle));
}

TEST_F(ScreenFitOnADesk, StaysInTheHandThatDragsItToASmallerScreen) {
  screens.setAvailable(kRight, {0, 0, 900, 500});
  showHost(kMiddle);
  dialog->show();
  const QPoint corner = available(kRight).topLeft() + QPoint(200, 100);
  screens.drag(*dialog, kRight, corner);
  EXPECT_EQ(dialog->pos(), corner);
  EXPECT_LE(dialog->width(), 900);
  EXPECT_LE(dialog->height(), 500);
}

TEST_F(ScreenFitOnADesk, KnowsScreensThatArePluggedInLater) {
  showHost(kMiddle);
  dialog->show();
  screens.plug({{1366, 768}, 100, {0, 1080}});
  constexpr int kNew = 3;
  screens.drag(*dialog, kNew, {20, 1090});
  screens.setAvailable(kNew, {0, 0, 900, 500});
  QCoreApplication::processEvents();
  expectDialogIn(QRect(0, 1080, 900, 500));
}

TEST_F(ScreenFitOnADesk, KeepsItsTitleAndItsButtonsOnAScreenThatIsTooSmallForMore) {
  screens.setAvailable(kMiddle, {0, 0, 500, 60});
  showHost(kMiddle);
  dialog->show();
  const QRect title = find<QWidget>("titleWidget").geometry();
  EXPECT_EQ(dialog->pos(), available(kMiddle).topLeft());
  EXPECT_GT(find<QWidget>("btnOK").geometry().top(), title.bottom());
  EXPECT_TRUE(dialog->rect().contains(find<QWidget>("btnOK").geometry()));
}

TEST_F(ScreenFitOnADesk, OpensItsBoxesBesideIt) {
  showHost(kLeft);
  dialog->show();
  const auto box = whenBoxIsShown([&](QMessageBox& shown) {
    EXPECT_TRUE(available(kLeft).contains(shown.frameGeometry()));
    shown.reject();
  });
  emit dialog->resetSetting();
}

TEST_F(ScreenFitOnADesk, KeepsAClickWhereItIs) {
  showHost(kRight);
  screens.setAvailable(kRight, {0, 0, 1024, 400});
  dialog->show();
  QApplication::setActiveWindow(dialog.get());
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  auto& box = on<CBasicSetting7Widget, QAbstractButton>("chkHideUI");
  const QPoint before = box.mapToGlobal({});
  QTest::mousePress(&box, Qt::LeftButton);
  EXPECT_TRUE(box.hasFocus());
  EXPECT_EQ(box.mapToGlobal({}), before) << "the page must not move under the mouse";
  QTest::mouseRelease(&box, Qt::LeftButton);
}

// Whichever window is active, those of the dialog come up over it.
TEST_F(ScreenFitOnADesk, OpensItsWindowsOverIt) {
  showHost(kMiddle);
  dialog->move(available(kRight).topLeft());
  dialog->show();
  QCoreApplication::processEvents();
  auto& chat = *dialog->findChild<ChatKeySettingWidget*>();
  const auto expectOverTheDialog = [&](const QWidget& window) {
    EXPECT_TRUE(available(kRight).contains(window.frameGeometry()));
  };
  QApplication::setActiveWindow(&host);
  chat.show();
  expectOverTheDialog(chat);
  chat.hide();

  QApplication::setActiveWindow(&host);
  ASSERT_EQ(QApplication::activeWindow(), &host);
  page<CBasicSetting7Widget>().onClickedOrrerySettingBtn();
  int orreries = 0;
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    if (qobject_cast<const COrrerySettingDlg*>(window) == nullptr || !window->isVisible()) continue;
    expectOverTheDialog(*window);
    ++orreries;
  }
  EXPECT_EQ(orreries, 1);
}

TEST_F(ScreenFitOnADesk, OpensTheWindowsOfOneThatIsHiddenInTheMiddleOfItsScreen) {
  showHost(kMiddle);
  dialog->move(available(kRight).topLeft());
  dialog->show();
  QCoreApplication::processEvents();
  dialog->hide();
  dialog->windowHandle()->setPosition(available(kRight).topLeft() - QPoint(300, 0));
  auto& chat = *dialog->findChild<ChatKeySettingWidget*>();
  chat.show();
  const QPoint middle = dialog->windowHandle()->screen()->availableGeometry().center();
  EXPECT_LE((chat.geometry().center() - middle).manhattanLength(), 2);
}

// A dense screen in the middle, one of a laptop on its right, one of another scale on its left.
class ScreenFitOnADeskOfManyScales : public ScreenFitOnADesk {
 protected:
  ScreenFitOnADeskOfManyScales()
      : ScreenFitOnADesk({{{3840, 2160}, 200},
                          {{1366, 768}, 100, {3840, 100}},
                          {{1920, 1080}, 125, {-1920, -80}}}) {}
};

TEST_F(ScreenFitOnADeskOfManyScales, ComesUpInsideTheScreenOfTheHost) {
  for (const Place place : {kMiddle, kRight, kLeft}) {
    SCOPED_TRACE(place);
    showHost(place);
    dialog->show();
    const QRect pixels = TestScreens::pixelsOf(*dialog);
    EXPECT_TRUE(screens.availablePixels(place).contains(pixels))
        << pixels.x() << ", " << pixels.y() << ": " << pixels.width() << " x " << pixels.height();
    dialog.reset();
    host.hide();
  }
}

}  // namespace
}  // namespace brennet::test
