// The settings dialog as a host opens it, answered by a timer.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>

#include "gameside/Dota7Values.h"
#include "tests/host/DialogFixture.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

class DialogSession : public DialogFixture {
 protected:
  DialogSession() {
    registry_.createKey(kDota7ControlPath);
    registry_.createKey(kDota7PhrasesPath);
  }

  // Something on each side: a key of the command card, a preset, phrases and a key of DotA 7.
  static void changeMuch(QDialog& dialog) {
    QWidget& page = basicPage(dialog);
    pressKey(field(page, "edtSkill_3"), Qt::Key_E, Qt::ControlModifier);
    button(page, "btn_skillcast_3").click();
    button(page, "chkGroupKey1").click();
    field(dialog, "edtChatWheel_1").setText(QStringLiteral("glhf"));
    button(page, "btnDota7Setting").click();
    pressKey(field(dialog, "edt_HStopKey"), Qt::Key_X);
  }

  ScopedRegistry registry_;
};

TEST_F(DialogSession, SavesWhatThePlayerConfirms) {
  EXPECT_TRUE(open("btnOK", changeMuch));
  EXPECT_TRUE(saved_);
  const HotkeyBlock block = filled();
  EXPECT_EQ(block.heroSkillKeys0to5[2], 'E' << 8 | KeyWord::kCtrl | 8)
      << "with its quick-cast mark";
  EXPECT_EQ(block.itemKeys[0], 'Q' << 8 | KeyWord::kAlt) << "the preset";
  const std::string file = readBytes(settings_);
  EXPECT_NE(file.find("<Key id=\"2\" autocast=\"1\">17666</Key>"), std::string::npos) << file;
  EXPECT_NE(file.find("<NumComboKeyIndex>0</NumComboKeyIndex>"), std::string::npos);
  EXPECT_NE(file.find("glhf"), std::string::npos);
  EXPECT_NE(file.find("<LastSaveTime>4711</LastSaveTime>"), std::string::npos);
  EXPECT_EQ(brennet_.GetLastSaveTime(), 77U) << "that of the last load";
  EXPECT_NE(readBytes(preferences_)
                .find("[Commandbar Hotkeys 22]\r\nHeroOnly=0\r\nHotkey=69\r\n"
                      "MetaKeyState=2"),
            std::string::npos);
  const platform::RegFile content = registry_.content();
  ASSERT_NE(content.find(below(kDota7ControlPath), u"HStopKeyCode"), nullptr);
  EXPECT_EQ(*content.find(below(kDota7ControlPath), u"HStopKeyCode"), platform::dwordValue('X'));
}

TEST_F(DialogSession, ChangesNothingWhenThePlayerCancels) {
  for (const char* const button : {"btnCancel", "btnClose"}) {
    const std::string file = readBytes(settings_);
    const std::string preferences = readBytes(preferences_);
    const platform::RegFile before = registry_.content();
    const HotkeyBlock block = filled();
    EXPECT_FALSE(open(button, changeMuch));
    EXPECT_FALSE(saved_);
    const HotkeyBlock after = filled();
    EXPECT_EQ(std::memcmp(&block, &after, sizeof(block)), 0);
    EXPECT_EQ(readBytes(settings_), file);
    EXPECT_EQ(readBytes(preferences_), preferences);
    EXPECT_EQ(registry_.content(), before);
  }
}

TEST_F(DialogSession, KeepsTheOldSettingsWhenTheyCannotBeSaved) {
  brennet_.LoadSettings(L"");
  const HotkeyBlock block = filled();
  EXPECT_TRUE(open("btnOK", changeMuch));
  EXPECT_FALSE(saved_);
  const HotkeyBlock after = filled();
  EXPECT_EQ(std::memcmp(&block, &after, sizeof(block)), 0);
}

TEST_F(DialogSession, NeedsAPlaceForItsAnswer) {
  EXPECT_FALSE(brennet_.ShowSettingsDialog(nullptr, 1));
}

TEST_F(DialogSession, EditsTheSchemeThatThePlayerChooses) {
  EXPECT_TRUE(open("btnOK", [](QDialog& dialog) {
    dialog.findChild<QComboBox*>(QStringLiteral("cmbHotkeySetting"))->setCurrentIndex(1);
    pressKey(field(basicPage(dialog), "edtSkill_1"), Qt::Key_T);
  }));
  EXPECT_EQ(filled().heroSkillKeys0to5[0], 'T' << 8);
  EXPECT_NE(readBytes(settings_).find("index=\"1\""), std::string::npos);
}

TEST_F(DialogSession, LeavesNoWindowsBehind) {
  const int before = QApplication::topLevelWidgets().size();
  for (int round = 0; round < 20; ++round) {
    EXPECT_FALSE(open("btnCancel", [](QDialog& dialog) {
      button(basicPage(dialog), "btnOrrerySetting").click();
    }));
  }
  EXPECT_EQ(QApplication::topLevelWidgets().size(), before);
}

}  // namespace
}  // namespace brennet::test
