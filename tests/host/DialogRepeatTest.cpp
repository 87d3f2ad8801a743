// The settings dialog again and again in one host: what it takes it gives back.

#include <QAbstractButton>
#include <QApplication>
#include <QPixmapCache>

#include "gameside/Dota7Values.h"
#include "tests/host/DialogFixture.h"
#include "tests/host/InUse.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/ui/UiTest.h"

namespace brennet::test {
namespace {

// After so many rounds nothing is met for the first time any more, such as fonts and pictures.
constexpr int kFirstRounds = 10;
constexpr int kRounds = 200;
// So often the player looks at everything that the dialog has, and confirms; else he cancels.
constexpr int kLookEach = 10;

class DialogRepeat : public DialogFixture {
 protected:
  DialogRepeat() {
    registry_.createKey(kDota7ControlPath);
    registry_.createKey(kDota7PhrasesPath);
  }

  static void look(QDialog& dialog) {
    button(dialog, "btnOrrerySetting").click();
    inWindowOf(button(dialog, "btnTalkSetting"), "btnCancel", [](QDialog&) {});
    {
      const auto question = whenBoxIsShown([](QMessageBox& box) { box.reject(); });
      QMetaObject::invokeMethod(&dialog, "onResetSetting");
    }
    button(dialog, "btnDota7Setting").click();
    inWindowOf(button(dialog, "chatHotkeyBtn"), "btnCancel", [](QDialog&) {});
  }

  void repeat(int from, int to) {
    for (int round = from; round < to; ++round) {
      const bool looks = round % kLookEach == 0;
      EXPECT_EQ(looks, looks ? open("btnOK", look) : open("btnCancel", [](QDialog&) {}));
      EXPECT_EQ(saved_, looks);
    }
  }

  ScopedRegistry registry_;
};

// Qt's cache of pictures keeps the arrow of each list that was drawn. It has a limit, and forgets
// what was not used for half a minute: it does not count.
TEST_F(DialogRepeat, GivesBackWhatItTakes) {
  // A dozen pointers for each round: less than any object of Qt takes.
  constexpr std::size_t kSlack = (kRounds - kFirstRounds) * 12 * sizeof(void*);
  repeat(0, kFirstRounds);
  QPixmapCache::clear();
  const InUse before = inUse();
  const int windows = QApplication::topLevelWidgets().size();
  repeat(kFirstRounds, kRounds);
  QPixmapCache::clear();
  expectNoMoreInUse(before, kSlack);
  EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
}

}  // namespace
}  // namespace brennet::test
