// A host that has windows of its own and loads the library only when needed: whatever was done with
// the library, nothing of it is left once it is unloaded.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <string>
#include <utility>

#include "gameside/dota7/Dota7Values.h"
#include "tests/host/InUse.h"
#include "tests/host/UnloadableLibrary.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {
namespace {

bool hasSkin() {
  return QFile::exists(QStringLiteral(":/skin/war3key.qss"));
}

TEST(Unload, TakesTheResourcesAway) {
  EXPECT_FALSE(hasSkin());
  for (int round = 0; round < 2; ++round) {
    {
      const UnloadableLibrary library;
      EXPECT_TRUE(hasSkin()) << round;
    }
    EXPECT_FALSE(hasSkin()) << round;
  }
}

// The host's own window, open the whole time.
class HostWindow : public QWidget {
 public:
  HostWindow() {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new QLineEdit(QStringLiteral("Player")));
    auto* const servers = new QComboBox;
    servers->addItems({QStringLiteral("East"), QStringLiteral("West")});
    layout->addWidget(servers);
    layout->addWidget(new QPushButton(QStringLiteral("Start")));
  }

  // Has Qt use everything that a library could have left with it: fonts, pictures, translated texts
  // and events.
  void use() {
    show();
    auto& servers = *findChild<QComboBox*>();
    servers.setCurrentIndex(1 - servers.currentIndex());
    QEvent language(QEvent::LanguageChange);
    QApplication::sendEvent(this, &language);
    findChild<QPushButton*>()->click();
    EXPECT_FALSE(grab().isNull());
    QApplication::processEvents();
  }
};

// Answers the dialog, once it is open, with the button of that name.
class Player {
 public:
  explicit Player(QString answer) : answer_(std::move(answer)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(0);
  }

 private:
  void look() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    timer_.stop();
    click(*dialog, QStringLiteral("btnDota7Setting"));
    click(*dialog, answer_);
  }

  static void click(QDialog& dialog, const QString& name) {
    auto* const button = dialog.findChild<QAbstractButton*>(name);
    if (button == nullptr) qFatal("there is no %s", qPrintable(name));
    button->click();
  }

  QString answer_;
  QTimer timer_;
};

class UnloadAfterTheDialog : public testing::Test {
 protected:
  UnloadAfterTheDialog() : profile_(folder_.path()) {
    registry_.createKey(kDota7ControlPath);
    registry_.createKey(kDota7PhrasesPath);
    writeBytes(settings_, "<KeyInfo enable=\"1\"><LastSaveTime>77</LastSaveTime></KeyInfo>");
  }

  void round(bool confirms) {
    {
      const UnloadableLibrary library;
      IBrennet& brennet = library.brennet();
      EXPECT_TRUE(brennet.LoadSettings(settings_.wstring().c_str()));
      const Player player(confirms ? QStringLiteral("btnOK") : QStringLiteral("btnCancel"));
      bool saved = false;
      EXPECT_EQ(brennet.ShowSettingsDialog(&saved, 78), confirms);
      EXPECT_EQ(saved, confirms);
    }
    window_.use();
  }

  void repeat(int from, int to) {
    for (int i = from; i < to; ++i) round(i % 2 == 0);
  }

  TempFolder folder_;
  ScopedProfile profile_;
  ScopedRegistry registry_;
  std::filesystem::path settings_ = folder_ / "KeyInfo.xml";
  HostWindow window_;
};

// Qt keeps the style sheets of the host and of the library in one cache.
TEST_F(UnloadAfterTheDialog, LeavesTheStyleSheetsOfTheHostAlone) {
  constexpr int kRounds = 5;
  for (int i = 0; i < kRounds; ++i) {
    window_.setStyleSheet(QStringLiteral("QPushButton { color: red }"));
    repeat(0, 2);
    window_.setStyleSheet(QString());
    window_.use();
  }
}

#ifdef __SANITIZE_ADDRESS__
// The sanitizers keep some hundred bytes for each load.
constexpr std::size_t kSlack = 1024;
#else
constexpr std::size_t kSlack = 0;
#endif

// The window has no style sheet here: where a host has one, Qt itself loses a few bytes with each
// window that has another, whether the library is loaded or not.
TEST_F(UnloadAfterTheDialog, LeavesNothingBehindAHundredTimes) {
  constexpr int kRounds = 100;
  const int windows = QApplication::topLevelWidgets().size();
  expectNothingIsLeft(
      kRounds, [&](int number) { round(number % 2 == 0); }, kSlack);
  EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
}

}  // namespace
}  // namespace brennet::test
