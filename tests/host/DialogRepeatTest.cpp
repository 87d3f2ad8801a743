// The settings dialog again and again in one host: it gives back whatever it takes.

#include <QAbstractButton>
#include <QApplication>

#include "gameside/dota7/Dota7Values.h"
#include "tests/host/DialogFixture.h"
#include "tests/host/InUse.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/ui/UiTest.h"

namespace brennet::test {
namespace {

constexpr int kRounds = 200;
// In one of so many rounds the player looks at everything and confirms; in the others he cancels.
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

  void round(int number) {
    const bool looks = number % kLookEach == 0;
    EXPECT_EQ(looks, looks ? open("btnOK", look) : open("btnCancel", [](QDialog&) {}));
    EXPECT_EQ(saved_, looks);
  }

  ScopedRegistry registry_;
};

TEST_F(DialogRepeat, GivesBackWhatItTakes) {
  const int windows = QApplication::topLevelWidgets().size();
  expectNothingIsLeft(kRounds, [&](int number) { round(number); });
  EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
}

}  // namespace
}  // namespace brennet::test
