// The settings dialog as a host opens it, answered by a timer.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTimer>

#include <algorithm>
#include "gameside/dota7/Dota7Values.h"
#include "keys/KeyWord.h"

#include "tests/host/DialogFixture.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

class DialogSession : public DialogFixture {
 protected:
  DialogSession() {
    registry_.createKey(kDota7ControlPath);
    registry_.createKey(kDota7PhrasesPath);
  }

  // A bit of everything: a key of the command card, a preset, phrases and a key of DotA 7.
  static void changeMuch(QDialog& dialog) {
    QWidget& page = basicPage(dialog);
    pressKey(field(page, "edtSkill_3"), Qt::Key_E, Qt::ControlModifier);
    button(page, "btn_skillcast_3").click();
    button(page, "chkGroupKey1").click();
    field(dialog, "edtChatWheel_1").setText(QStringLiteral("glhf"));
    button(page, "btnDota7Setting").click();
    pressKey(field(dialog, "edt_HStopKey"), Qt::Key_X);
  }

  // Calls `act` as a host would, from within its event loop.
  static void inAnApplication(const std::function<void()>& act) {
    QTimer::singleShot(0, [&] {
      act();
      QCoreApplication::quit();
    });
    QCoreApplication::exec();
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

TEST_F(DialogSession, KeepsTheOldSettingsWithoutAFileToSaveThemIn) {
  brennet_.LoadSettings(L"");
  const HotkeyBlock block = filled();
  EXPECT_TRUE(open("btnOK", changeMuch));
  EXPECT_FALSE(saved_);
  const HotkeyBlock after = filled();
  EXPECT_EQ(std::memcmp(&block, &after, sizeof(block)), 0);
}

// The windows may be those of a loaded library, so only the name of the notice's class is known.
bool tellsOfTheLoad(const QDialog& dialog) {
  const auto widgets = dialog.findChildren<QWidget*>();
  return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
    return qstrcmp(widget->metaObject()->className(), "CNoticeStrip") == 0;
  });
}

TEST_F(DialogSession, TellsOnceWhatALoadCouldNotUse) {
  // Two hero skills with one key.
  const std::string text =
      "<KeyInfo enable=\"1\" index=\"0\"><LastSaveTime>77</LastSaveTime><KeyInfo_0><HeroSkillKey>"
      "<Key id=\"0\">20736</Key><Key id=\"1\">20736</Key></HeroSkillKey></KeyInfo_0></KeyInfo>";
  bool isTold = true;
  const auto look = [&isTold](QDialog& dialog) { isTold = tellsOfTheLoad(dialog); };
  open("btnCancel", look);
  EXPECT_FALSE(isTold) << "a load that used everything";
  for (int loads = 0; loads < 2; ++loads) {
    ASSERT_TRUE(loadText(text));
    open("btnCancel", look);
    EXPECT_TRUE(isTold);
    open("btnCancel", look);
    EXPECT_FALSE(isTold) << "the player has seen it";
  }
  ASSERT_TRUE(loadText(text));
  EXPECT_FALSE(brennet_.LoadSettings(L"no such file"));
  open("btnCancel", look);
  EXPECT_FALSE(isTold) << "nothing is kept of a load before one that fails";
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

// A host can end the dialog in ways that a player cannot.
TEST_F(DialogSession, ChangesNothingWhenTheHostEndsIt) {
  struct Row {
    const char* name;
    void (*end)(QDialog&);
  };
  const Row rows[] = {
      {"quit", [](QDialog&) { QCoreApplication::quit(); }},
      {"done", [](QDialog& dialog) { dialog.done(QDialog::Rejected); }},
      {"hide", [](QDialog& dialog) { dialog.hide(); }},
      {"close", [](QDialog& dialog) { dialog.close(); }},
      {"close all", [](QDialog&) { QApplication::closeAllWindows(); }},
      {"under a box",
       [](QDialog& dialog) {
         const auto box = whenBoxIsShown([&](QMessageBox& question) {
           dialog.done(QDialog::Rejected);
           question.button(QMessageBox::Ok)->click();
         });
         QMetaObject::invokeMethod(&dialog, "onResetSetting");
       }},
      {"under a window",
       [](QDialog& dialog) {
         inWindowOf(button(dialog, "chatHotkeyBtn"), "btnOK", [&](QDialog& chat) {
           field(chat, "edt_SQuickChatString0").setText(QStringLiteral("hi"));
           dialog.done(QDialog::Rejected);
         });
       }},
  };
  for (const Row& row : rows) {
    const platform::RegFile registry = registry_.content();
    const HotkeyBlock block = filled();
    inAnApplication([&] {
      EXPECT_FALSE(openUntil([&](QDialog& dialog) {
        changeMuch(dialog);
        row.end(dialog);
      })) << row.name;
    });
    EXPECT_FALSE(saved_) << row.name;
    EXPECT_EQ(registry_.content(), registry) << row.name;
    const HotkeyBlock after = filled();
    EXPECT_EQ(std::memcmp(&block, &after, sizeof(block)), 0) << row.name;
  }
}

// Whatever a timer of the host does meanwhile, the player's changes are not lost.
TEST_F(DialogSession, IsNotDisturbedByItsHost) {
  EXPECT_TRUE(open("btnOK", [this](QDialog& dialog) {
    changeMuch(dialog);
    // If a second one opened, nobody would answer it.
    QTimer::singleShot(0, &dialog, [&dialog] {
      QWidget* const other = QApplication::activeModalWidget();
      if (other != nullptr && other != &dialog) other->close();
    });
    bool saved = true;
    EXPECT_FALSE(brennet_.ShowSettingsDialog(&saved, 1)) << "one is open already";
    QCoreApplication::processEvents();
    EXPECT_FALSE(saved);
    HotkeyBlock block = filled();
    block.zoomValue = 55;
    EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 1), -1);
    EXPECT_NE(filled().zoomValue, 55);
  }));
  EXPECT_TRUE(saved_);
  EXPECT_EQ(filled().heroSkillKeys0to5[2] >> 8, 'E');
  HotkeyBlock block = filled();
  block.zoomValue = 55;
  EXPECT_EQ(brennet_.ApplyHotkeyBlock(&block, 1), 0) << "as soon as it is closed";
}

TEST_F(DialogSession, ChoosesASchemeWhereTheFileNamesNone) {
  EXPECT_TRUE(
      loadText("<KeyInfo enable=\"1\" index=\"5\"><LastSaveTime>77</LastSaveTime></KeyInfo>"));
  EXPECT_TRUE(open("btnOK", [](QDialog& dialog) {
    auto& schemes = *dialog.findChild<QComboBox*>(QStringLiteral("cmbHotkeySetting"));
    EXPECT_EQ(schemes.currentIndex(), -1);
    schemes.setCurrentIndex(0);
    pressKey(field(basicPage(dialog), "edtSkill_1"), Qt::Key_T);
  }));
  EXPECT_NE(readBytes(settings_).find("index=\"0\""), std::string::npos);
  EXPECT_EQ(filled().heroSkillKeys0to5[0], 'T' << 8);
}

TEST_F(DialogSession, KeepsASchemeThatThereIsNot) {
  EXPECT_TRUE(
      loadText("<KeyInfo enable=\"1\" index=\"5\"><LastSaveTime>77</LastSaveTime></KeyInfo>"));
  EXPECT_TRUE(open("btnOK", [](QDialog&) {}));
  EXPECT_NE(readBytes(settings_).find("index=\"5\""), std::string::npos);
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
