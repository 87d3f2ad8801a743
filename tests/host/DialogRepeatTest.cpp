// The settings dialog again and again in one host: what it takes it gives back.

#include <QApplication>
#include <QDialog>
#include <QPixmapCache>
#include <QPushButton>
#include <QTimer>

#include "gameside/Dota7Values.h"
#include "tests/host/HostFixture.h"
#include "tests/host/InUse.h"
#include "tests/support/ScopedRegistry.h"

namespace brennet::test {
namespace {

// After so many rounds nothing is met for the first time any more, such as fonts and pictures.
constexpr int kFirstRounds = 10;
constexpr int kRounds = 200;
constexpr int kOrreryEach = 10;

class DialogRepeat : public HostFixture {
 protected:
  DialogRepeat() {
    registry_.createKey(kDota7ControlPath);
    registry_.createKey(kDota7PhrasesPath);
  }

  // Opens the dialog, and the Orrery window from it if asked to, and cancels it.
  void openAndCancel(bool withOrrery) {
    bool isOpened = false;
    QTimer::singleShot(0, [&] {
      auto& dialog = *qobject_cast<QDialog*>(QApplication::activeModalWidget());
      isOpened = true;
      if (withOrrery) click(dialog, "btnOrrerySetting");
      click(dialog, "btnCancel");
    });
    bool saved = true;
    EXPECT_FALSE(brennet_.ShowSettingsDialog(&saved, 4711));
    EXPECT_FALSE(saved);
    EXPECT_TRUE(isOpened);
  }

  void repeat(int from, int to) {
    for (int round = from; round < to; ++round) openAndCancel(round % kOrreryEach == 0);
  }

  static void click(QDialog& dialog, const char* button) {
    dialog.findChild<QPushButton*>(QLatin1String(button))->click();
  }

  ScopedRegistry registry_;
};

// Qt's cache of pictures keeps the arrow of each list that was drawn. It has a limit, and forgets
// what was not used for half a minute.
InUse inUseWithoutCache() {
  QPixmapCache::clear();
  return inUse();
}

TEST_F(DialogRepeat, GivesBackWhatItTakes) {
  // A dozen pointers for each round: less than any object of Qt takes.
  constexpr std::size_t kSlack = (kRounds - kFirstRounds) * 12 * sizeof(void*);
  repeat(0, kFirstRounds);
  const InUse before = inUseWithoutCache();
  const int windows = QApplication::topLevelWidgets().size();
  repeat(kFirstRounds, kRounds);
  const InUse after = inUseWithoutCache();
  ASSERT_GT(before.memory, 0U);
  EXPECT_LE(after.memory, before.memory + kSlack);
  EXPECT_EQ(after.handles, before.handles);
  EXPECT_EQ(after.drawingObjects, before.drawingObjects);
  EXPECT_EQ(after.windowObjects, before.windowObjects);
  EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
}

}  // namespace
}  // namespace brennet::test
