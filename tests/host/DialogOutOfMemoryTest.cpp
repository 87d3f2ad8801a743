// The settings dialog while memory runs out: from the first window to the last, each allocation of
// the component fails, alone or with all that follow. The host gets false and its old settings, and
// the dialog opens again.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>

#include <array>
#include <cstddef>
#include <optional>

#include "gameside/dota7/Dota7Values.h"
#include "tests/host/DialogFixture.h"
#include "tests/host/FailingNew.h"
#include "tests/host/SettingsWithoutMarks.h"
#include "tests/support/FaultPoints.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/support/ToleratedLeaks.h"
#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

QDialog& topWindow() {
  return *static_cast<QDialog*>(QApplication::activeModalWidget());
}

template <class Widget>
Widget& child(QWidget& window, const char* name) {
  return *window.findChild<Widget*>(QLatin1String(name));
}

void click(QWidget& window, const char* name) {
  child<QAbstractButton>(window, name).click();
}

void press(const char* name, Qt::Key key) {
  pressKey(child<QWidget>(topWindow(), name), key);
}

void answer(QMessageBox::StandardButton button) {
  static_cast<QMessageBox&>(topWindow()).button(button)->click();
}

// Everything that the player does, from window to window; the last step ends the dialog.
using Step = void (*)();
constexpr Step kSteps[] = {
    [] { press("edtSkill_3", Qt::Key_E); },
    [] { press("edtSkill_4", Qt::Key_E); },  // the key is taken: a box comes up
    [] { answer(QMessageBox::Ok); },
    [] { click(topWindow(), "btn_skillcast_3"); },
    [] { click(topWindow(), "chkGroupKey1"); },
    [] { child<QLineEdit>(topWindow(), "edtChatWheel_1").setText(QStringLiteral("glhf")); },
    [] { click(topWindow(), "btnOrrerySetting"); },
    [] { click(topWindow(), "btnTalkSetting"); },
    [] { click(topWindow(), "btnOK"); },
    [] { child<QComboBox>(topWindow(), "cmbHotkeySetting").setCurrentIndex(1); },
    [] { QMetaObject::invokeMethod(&topWindow(), "useRecommendedSetting"); },
    [] { answer(QMessageBox::Ok); },
    [] { child<QComboBox>(topWindow(), "cmbHotkeySetting").setCurrentIndex(0); },
    [] { click(topWindow(), "btnDota7Setting"); },
    [] { press("edt_HStopKey", Qt::Key_X); },
    [] { click(topWindow(), "chatHotkeyBtn"); },
    [] {
      auto& phrase = child<QLineEdit>(topWindow(), "edt_SQuickChatString0");
      QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
      QCoreApplication::sendEvent(&phrase, &asked);
    },
    [] {
      QWidget* const menu = QApplication::activePopupWidget();
      if (menu != nullptr) menu->close();
    },
    [] { click(topWindow(), "btnOK"); },
    [] { QMetaObject::invokeMethod(&topWindow(), "resetSetting"); },
    [] { answer(QMessageBox::Cancel); },
    [] { click(topWindow(), "btnSwitchPlat"); },
    [] { topWindow().grab(); },
    [] { click(topWindow(), "btnOK"); },
};

// Does one step after the other, each from the event loop of the window that is open then. The
// timers are the dialog's, so that a step fails as the dialog's own handlers would.
void play(QDialog& dialog, std::size_t step) {
  if (step == std::size(kSteps)) return;
  auto* const timer = new QTimer(&dialog);
  timer->setSingleShot(true);
  QObject::connect(timer, &QTimer::timeout, &dialog, [&dialog, step] {
    play(dialog, step + 1);
    kSteps[step]();
  });
  timer->start(0);
}

// Starts the player when the dialog has come up.
class Player {
 public:
  Player() {
    const WithoutFailures inTheTest;
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(0);
  }

 private:
  void look() {
    const WithoutFailures inTheTest;
    if (QApplication::activeModalWidget() == nullptr) return;
    timer_.stop();
    play(topWindow(), 0);
  }
  QTimer timer_;
};

class DialogOutOfMemory : public DialogFixture, public testing::WithParamInterface<Lasts> {
 protected:
  DialogOutOfMemory() {
    renewRegistry();
    play();  // from now on, everything that a process makes only once exists
    reset();
    before_ = filled();
  }

  void renewRegistry() {
    registry_.reset();
    registry_.emplace();
    registry_->createKey(kDota7ControlPath);
    registry_->createKey(kDota7PhrasesPath);
    registryBefore_ = registry_->content();
  }

  void reset() {
    renewRegistry();
    writeBytes(preferences_, kPreferences);
    ASSERT_TRUE(loadText(settingsWithoutMarks()));
    ASSERT_TRUE(loadText(kDefaults));
    files_ = folder_.listing();
  }

  bool play() {
    const Player player;
    saved_ = true;
    return brennet_.ShowSettingsDialog(&saved_, 4711);
  }

  // If the settings were saved, everything is new; otherwise everything is as it was.
  void expectOneState(bool isConfirmed, long point) {
    EXPECT_EQ(folder_.listing(), files_) << point;
    const HotkeyBlock now = filled();
    const bool isOld = std::memcmp(&now, &before_, sizeof(now)) == 0;
    EXPECT_EQ(isOld, !saved_) << point;
    EXPECT_EQ(readBytes(settings_) == kDefaults, !saved_) << point;
    EXPECT_TRUE(isConfirmed || !saved_) << point;
    if (saved_) {
      EXPECT_NE(readBytes(settings_).find("glhf"), std::string::npos) << point;
    }
    // Restoring the registry takes memory as well.
    if (GetParam() == Lasts::Once) {
      EXPECT_EQ(registry_->content() == registryBefore_, !isConfirmed) << point;
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << point;
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << point;
  }

  std::optional<ScopedRegistry> registry_;
  platform::RegFile registryBefore_;
  std::string files_;
  HotkeyBlock before_;
};

TEST_P(DialogOutOfMemory, IsAnAnswerForTheHost) {
  const long count = allocationsOf([this] { EXPECT_TRUE(play()); }, Whose::Ours);
  ASSERT_TRUE(saved_);
  RecordProperty("allocations", static_cast<int>(count));
  int refused = 0;
  for (const long point : faultPoints(count, 25)) {
    reset();
    bool isConfirmed = true;
    {
      const ToleratedLeaks ofTheForms;
      const FailingAllocation failing(point, GetParam(), Whose::Ours);
      isConfirmed = play();
    }
    if (!isConfirmed) ++refused;
    expectOneState(isConfirmed, point);
    EXPECT_FALSE(open("btnCancel", [](QDialog&) {})) << "once more, " << point;
    if (HasFailure()) break;
  }
  EXPECT_GT(refused, 0);
}

INSTANTIATE_TEST_SUITE_P(Of, DialogOutOfMemory, testing::Values(Lasts::Once, Lasts::ForEver),
                         [](const auto& lasts) {
                           return lasts.param == Lasts::Once ? "Once" : "ForEver";
                         });

}  // namespace
}  // namespace brennet::test
