// Giving setting groups away and taking them over in the settings dialog, as a player does it.

#include <QComboBox>
#include <QPushButton>
#include <QTimer>
#include <QTranslator>
#include <QTreeWidget>

#include "model/SchemeDifferences.h"
#include "tests/support/TempFolder.h"
#include "tests/ui/SettingsDialogTest.h"
#include "tests/ui/history/Settle.h"
#include "ui/pages/SchemeTransferButtons.h"
#include "ui/window/Text.h"

namespace brennet::test {
namespace {

class SchemeTransferInTheDialog : public SettingsDialog {
 protected:
  SchemeTransferInTheDialog() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
    config.editableScheme(0)->HeroSkillKey[0] = KeyWord('Q', 0);
    config.editableScheme(2)->HeroSkillKey[0] = KeyWord('Y', 0);
    config.editableScheme(2)->HideUI = 1;
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
    show();
  }

  QPushButton& button(const char* name) { return find<QPushButton>(name); }
  SchemeTransferButtons& transfers() { return dialog->transfers(); }

  // Does that with the next preview, which must come up while `act` runs.
  template <class Act>
  void withPreview(const std::function<void(SchemeTransferWindow&)>& look, Act act) {
    bool isShown = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      auto* const preview = qobject_cast<SchemeTransferWindow*>(QApplication::activeModalWidget());
      if (preview == nullptr) return;
      timer.stop();
      isShown = true;
      look(*preview);
      if (preview->isVisible()) preview->reject();
    });
    timer.start(0);
    act();
    EXPECT_TRUE(isShown) << "no preview";
    settle();
  }
  static void choose(SchemeTransferWindow& preview, int offer) {
    preview.findChild<QComboBox*>()->setCurrentIndex(offer);
  }
  static void agree(SchemeTransferWindow& preview) {
    QTest::mouseClick(preview.findChild<QPushButton*>(QStringLiteral("btnOK")), Qt::LeftButton);
  }
  std::string undoText() { return button("btnUndo").accessibleDescription().toStdString(); }

  [[nodiscard]] QString file(std::string_view name = "keys.xml") const {
    return toQString((folder_ / name).u16string());
  }
  QString fileWith(std::string_view bytes) {
    writeBytes(folder_ / "keys.xml", bytes);
    return file();
  }

  TempFolder folder_;

 private:
  QTranslator english_;
};

TEST_F(SchemeTransferInTheDialog, CopiesAnotherGroupInOneStep) {
  const HotkeyScheme before = config.scheme();
  withPreview(
      [](SchemeTransferWindow& preview) {
        EXPECT_EQ(preview.findChild<QComboBox*>()->itemText(1), QStringLiteral("Group 3"));
        choose(preview, 1);
        EXPECT_EQ(preview.findChild<QTreeWidget*>()->topLevelItemCount(), 2);
        agree(preview);
      },
      [this] { QTest::mouseClick(&button("btnCopyFrom"), Qt::LeftButton); });
  EXPECT_TRUE(differencesOf(config.scheme(0), config.scheme(2)).empty());
  EXPECT_EQ(skill(1).text(), QStringLiteral("Y"));
  EXPECT_EQ(undoText().substr(0, 18), "Copy from: Group 3");
  QTest::mouseClick(&button("btnUndo"), Qt::LeftButton);
  EXPECT_EQ(config.scheme(), before);
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_FALSE(button("btnUndo").isEnabled()) << "it was one step";
}

TEST_F(SchemeTransferInTheDialog, ChangesNothingUnlessThePlayerAgrees) {
  const HotkeyScheme before = config.scheme();
  withPreview([](SchemeTransferWindow& preview) { choose(preview, 1); },
              [this] { QTest::mouseClick(&button("btnCopyFrom"), Qt::LeftButton); });
  EXPECT_EQ(config.scheme(), before);
  EXPECT_FALSE(button("btnUndo").isEnabled());
}

TEST_F(SchemeTransferInTheDialog, OffersTheGroupsThatAreNotShown) {
  find<QComboBox>("cmbHotkeySetting").setCurrentIndex(1);
  withPreview(
      [](SchemeTransferWindow& preview) {
        const auto& offers = *preview.findChild<QComboBox*>();
        ASSERT_EQ(offers.count(), 2);
        EXPECT_EQ(offers.itemText(0), QStringLiteral("Group 1"));
        EXPECT_EQ(offers.itemText(1), QStringLiteral("Group 3"));
      },
      [this] { transfers().copyFrom(); });
}

TEST_F(SchemeTransferInTheDialog, ExportsAndImports) {
  {
    const NoBoxes noBoxes;
    transfers().exportTo(file());
  }
  find<QComboBox>("cmbHotkeySetting").setCurrentIndex(1);
  withPreview(
      [](SchemeTransferWindow& preview) {
        EXPECT_FALSE(preview.findChild<QComboBox*>()->isEnabled()) << "the file has one group";
        agree(preview);
      },
      [this] { transfers().importFrom(file()); });
  EXPECT_TRUE(differencesOf(config.scheme(0), config.scheme(1)).empty());
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  EXPECT_EQ(undoText(), "Import: Group 1\nHero skill 1: none → Q");
  EXPECT_EQ(config.index(), 1U);
}

TEST_F(SchemeTransferInTheDialog, ImportsAnyGroupOfAFile) {
  const QString name = fileWith(
      "<KeyInfo><LastSaveTime>1</LastSaveTime><KeyInfo_0/><KeyInfo_2>"
      "<HeroSkillKey><Key id=\"0\">22272</Key></HeroSkillKey></KeyInfo_2></KeyInfo>");
  withPreview(
      [](SchemeTransferWindow& preview) {
        EXPECT_EQ(preview.findChild<QComboBox*>()->currentText(), QStringLiteral("Group 1"));
        choose(preview, 1);
        agree(preview);
      },
      [this, name] { transfers().importFrom(name); });
  EXPECT_EQ(skill(1).text(), QStringLiteral("W"));
}

TEST_F(SchemeTransferInTheDialog, TellsOfFilesThatBringNothing) {
  const HotkeyScheme before = config.scheme();
  const struct {
    QString file;
    const char* text;
  } kRows[] = {
      {file("missing.xml"), "The file cannot be read. Your settings have not changed."},
      {fileWith("hello"), "The file is damaged. Your settings have not changed."},
  };
  for (const auto& row : kRows) {
    const auto box = whenBoxIsShown([&row](QMessageBox& shown) {
      EXPECT_EQ(shown.text().toStdString(), row.text);
      EXPECT_EQ(shown.icon(), QMessageBox::Critical);
      shown.accept();
    });
    transfers().importFrom(row.file);
  }
  {
    const auto box = whenBoxIsShown([](QMessageBox& shown) {
      EXPECT_EQ(shown.text().toStdString(),
                "This is no file of hotkey settings. Your settings have not changed.");
      shown.accept();
    });
    transfers().importFrom(fileWith("<html/>"));
  }
  EXPECT_EQ(config.scheme(), before);
  settle();
  EXPECT_FALSE(button("btnUndo").isEnabled());
}

TEST_F(SchemeTransferInTheDialog, TellsOfAFileThatCannotBeWritten) {
  const auto box = whenBoxIsShown([](QMessageBox& shown) {
    EXPECT_EQ(shown.text().toStdString(), "The file cannot be saved.");
    EXPECT_FALSE(shown.informativeText().isEmpty()) << "what the system says";
    shown.accept();
  });
  transfers().exportTo(toQString(folder_.path().u16string()));
}

// It would be written at once, and without the other groups.
TEST_F(SchemeTransferInTheDialog, DoesNotExportOverTheOwnSettingsFile) {
  writeBytes(folder_ / "keys.xml", "all groups");
  transfers().setOwnFile(file());
  const auto box = whenBoxIsShown([](QMessageBox& shown) {
    EXPECT_EQ(shown.text().toStdString(),
              "This is the settings file that you are using. Please choose another one.");
    shown.accept();
  });
  transfers().exportTo(toQString((folder_ / "." / "keys.xml").u16string()));
  EXPECT_EQ(readBytes(folder_ / "keys.xml"), "all groups");
}

TEST_F(SchemeTransferInTheDialog, TellsOfCharactersThatAreLost) {
  config.editableScheme()->QuickChat[0] = u"\U0001F600";
  const auto box = whenBoxIsShown([](QMessageBox& shown) {
    EXPECT_EQ(shown.icon(), QMessageBox::Warning);
    shown.accept();
  });
  transfers().exportTo(file());
  EXPECT_FALSE(readBytes(folder_ / "keys.xml").empty());
}

TEST_F(SchemeTransferInTheDialog, IsOfGroupsOnly) {
  const char* const names[] = {"btnCopyFrom", "btnExport", "btnImport"};
  for (const char* const name : names) EXPECT_TRUE(button(name).isVisible()) << name;
  dialog->onSwitchDota7KeySettingDlg();
  for (const char* const name : names) EXPECT_FALSE(button(name).isVisible()) << name;
  dialog->onSwitchPlatKeySettingDlg();
  for (const char* const name : names) EXPECT_TRUE(button(name).isVisible()) << name;
}

TEST_F(SchemeTransferInTheDialog, WaitsUntilAGroupIsChosen) {
  config.setIndex(HotkeyConfig::kSchemes);
  dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  show();
  const char* const names[] = {"btnCopyFrom", "btnExport", "btnImport"};
  for (const char* const name : names) EXPECT_FALSE(button(name).isEnabled()) << name;
  find<QComboBox>("cmbHotkeySetting").setCurrentIndex(2);
  settle();
  for (const char* const name : names) EXPECT_TRUE(button(name).isEnabled()) << name;
  QTest::mouseClick(&button("btnUndo"), Qt::LeftButton);
  for (const char* const name : names) EXPECT_FALSE(button(name).isEnabled()) << name;
}

}  // namespace
}  // namespace brennet::test
