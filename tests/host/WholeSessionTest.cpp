// An evening with the settings dialog: everything that a player does there, in one go, from the
// files that the host finds to those that it leaves behind.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTest>

#include <algorithm>
#include <iterator>

#include "gameside/dota7/Dota7Values.h"
#include "keys/KeyWord.h"
#include "tests/host/DialogFixture.h"
#include "tests/support/Golden.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/support/TestData.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"

namespace brennet::test {
namespace {

std::string sample(const char* name) {
  return readBytes(sampleData(name));
}

platform::RegistryValue bytes(std::string data) {
  return {platform::kRegistryBinary, std::move(data)};
}

class WholeSession : public DialogFixture {
 protected:
  // Starts with the sample files and with the first keys imported into the registry.
  WholeSession() {
    writeBytes(preferences_, sample("War3Preferences.txt"));
    EXPECT_TRUE(loadText(sample("KeyInfo.xml")));
    writeBytes(folder_ / "Tollamere.reg", sample("Tollamere.reg"));
    const std::wstring data = folder_.path().wstring();  // without a separator at its end
    brennet_.SetDataFolder(data.c_str());
    EXPECT_FALSE(open("btnCancel", [](QDialog& dialog) {
      EXPECT_TRUE(button(dialog, "btnDota7Setting").isVisible());
    }));
    platform::RegFile imported;
    EXPECT_TRUE(imported.merge(sample("Tollamere.reg")));
    EXPECT_TRUE(registry_.becomes(imported));
  }
  ~WholeSession() override { brennet_.SetDataFolder(nullptr); }

  static void chooseScheme(QDialog& dialog, int index) {
    dialog.findChild<QComboBox*>(QStringLiteral("cmbHotkeySetting"))->setCurrentIndex(index);
  }

  // A window beside the dialog.
  static QWidget& window(const char* name) {
    for (QWidget* const candidate : QApplication::topLevelWidgets()) {
      if (candidate->objectName() == QLatin1String(name)) return *candidate;
    }
    qFatal("there is no %s", name);
  }

  // Changes keys of the second scheme, which is the current one.
  static void changeKeys(QWidget& page) {
    pressKey(field(page, "edtSkill_3"), Qt::Key_E, Qt::ControlModifier);
    button(page, "btn_skillcast_3").click();
    {
      const auto refusal = whenBoxIsShown([](QMessageBox& box) { box.accept(); });
      pressKey(field(page, "edtSkill_4"), Qt::Key_Q);
    }
    pressKey(field(page, "edtSkill_5"), Qt::Key_Delete);
    pressKey(field(page, "edtMouseWheelUpKey"), Qt::Key_U, Qt::ControlModifier);
    pressKey(field(page, "edt_skillex_L_4"), Qt::Key_F4);
    pressKey(field(page, "edt_skillex_R_4"), Qt::Key_J);
    button(page, "chkGroupKey1").click();
    button(page, "chkSkillHero").click();
    button(page, "btnOrrerySetting").click();
    QWidget& orrery = window("COrrerySettingDlg");
    button(orrery, "chkShowFriendsMana").click();
    button(orrery, "btnClose").click();
  }

  static void changeQuickChat(QDialog& window) {
    button(window, "optChatKey_2").click();
    field(window, "chatLineEdit_1").setText(QString::fromUtf8("推中路！"));
    field(window, "chatLineEdit_8").setText(QStringLiteral("gg <wp> & \"ty\""));
  }

  static void resetThirdScheme(QDialog& dialog) {
    chooseScheme(dialog, 2);
    const auto question =
        whenBoxIsShown([](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
    QTest::mouseClick(dialog.findChild<QWidget*>(QStringLiteral("lblResetToDefaultSetting")),
                      Qt::LeftButton);
  }

  static void changeOtherSchemes(QDialog& dialog) {
    resetThirdScheme(dialog);
    pressKey(field(basicPage(dialog), "edtSkill_1"), Qt::Key_T);
    chooseScheme(dialog, 0);
    pressKey(field(basicPage(dialog), "edtSkill_12"), Qt::Key_L, Qt::AltModifier);
    chooseScheme(dialog, 1);
  }

  static void changeDota7Chat(QDialog& window) {
    field(window, "edt_SQuickChatString0").setText(QString::fromUtf8("中路消失"));
    pressKey(field(window, "edt_HQuickChatHot0Key"), Qt::Key_Y, Qt::ControlModifier);
  }

  static void changeDota7(QDialog& dialog) {
    button(basicPage(dialog), "btnDota7Setting").click();
    pressKey(field(dialog, "edt_HStopKey"), Qt::Key_X, Qt::ControlModifier);
    pressKey(field(dialog, "edt_ItemKeyC0"), Qt::Key_Z, Qt::AltModifier);
    button(dialog, "chk_SLegacyKeys").click();
    button(dialog, "chk_QuickUse").click();
    pressKey(field(dialog, "edt_ItemKeyC0"), Qt::Key_V);
    inWindowOf(button(dialog, "chatHotkeyBtn"), "btnOK", changeDota7Chat);
    button(dialog, "btnSwitchPlat").click();
  }

  static void changeEverything(QDialog& dialog) {
    changeKeys(basicPage(dialog));
    inWindowOf(button(basicPage(dialog), "btnTalkSetting"), "btnOK", changeQuickChat);
    changeOtherSchemes(dialog);
    changeDota7(dialog);
  }

  ScopedRegistry registry_;
};

constexpr std::uint32_t kShowFManaFlag = 1U << 7U;
constexpr std::uint16_t kQuickCast = 8;

// Replaces the first and the last of the eight phrases, which a block stores one after the other.
void changePhrases(HotkeyBlock& block) {
  std::string packed;
  const char* phrase = block.quickChat;
  for (int n = 0; n < 8; ++n) {
    const std::string old = phrase;
    phrase += old.size() + 1;
    packed += (n == 0 ? "推中路！" : n == 7 ? "gg <wp> & \"ty\"" : old) + '\0';
  }
  std::fill(std::begin(block.quickChat), std::end(block.quickChat), '\0');
  std::copy(packed.begin(), packed.end(), block.quickChat);
}

// What the game gets after the session: the block from before, with the player's changes.
HotkeyBlock changedBlock(HotkeyBlock block) {
  block.flags |= kShowFManaFlag;
  block.heroSkillKeys0to5[2] = 'E' << 8 | KeyWord::kCtrl | kQuickCast;
  block.heroSkillKeys0to5[3] = 0;
  block.heroSkillKeys0to5[4] = 0;
  for (int slot = 0; slot < 6; ++slot) {  // the keys of a preset are used as normal ones
    block.itemKeys[slot] = static_cast<std::uint16_t>("QWERDF"[slot] << 8 | KeyWord::kAlt);
  }
  block.quickChatIndex = 1;
  constexpr unsigned kF4 = 0x73;
  block.keyRemaps[3] = kF4 << 24U | 'J' << 8;
  block.mouseKeys[0] = 'U' << 8 | KeyWord::kCtrl;
  block.skillHeroOnly = 0;
  changePhrases(block);
  return block;
}

// Makes the player's changes in a registry.
void change(platform::RegFile& registry) {
  const std::u16string control = below(kDota7ControlPath);
  const auto setKey = [&](const std::u16string& path, const char16_t* text, const char16_t* code,
                          const char* keyText, char key) {
    registry.set(path, text, bytes(keyText));
    registry.set(path, code, platform::dwordValue(static_cast<std::uint32_t>(key)));
  };
  setKey(control, u"HStopKey", u"HStopKeyCode", "CTRL + X", 'X');
  setKey(control, u"ItemKeyC0", u"ItemKeyCodeC0", "ALT + Z", 'Z');
  setKey(control, u"ItemKeyQC0", u"ItemKeyCodeQC0", "V", 'V');
  registry.set(control, u"SLegacyKeys", platform::dwordValue(1));
  const std::u16string phrases = below(kDota7PhrasesPath);
  setKey(phrases, u"HQuickChatHot0Key", u"HQuickChatHot0KeyCode", "CTRL + Y", 'Y');
  registry.set(phrases, u"SQuickChatString0", bytes("中路消失"));
}

testing::AssertionResult isSame(const HotkeyBlock& actual, const HotkeyBlock& expected) {
  const auto* const one = reinterpret_cast<const unsigned char*>(&actual);
  const auto* const other = reinterpret_cast<const unsigned char*>(&expected);
  const auto difference = std::mismatch(one, one + sizeof(actual), other);
  if (difference.first == one + sizeof(actual)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "at offset " << difference.first - one << ": "
                                     << +*difference.first << " instead of " << +*difference.second;
}

TEST_F(WholeSession, LeavesBehindWhatThePlayerConfirmed) {
  const HotkeyBlock expectedBlock = changedBlock(filled());
  platform::RegFile expectedRegistry = registry_.content();
  change(expectedRegistry);
  EXPECT_TRUE(open("btnOK", changeEverything));
  EXPECT_TRUE(saved_);
  expectGolden("host/whole-session.KeyInfo.xml", readBytes(settings_));
  expectGolden("host/whole-session.War3Preferences.txt", readBytes(preferences_));
  EXPECT_TRUE(isSame(filled(), expectedBlock));
  EXPECT_EQ(registry_.content(), expectedRegistry);
  EXPECT_TRUE(brennet_.LoadSettings(settings_.wstring().c_str()));
  EXPECT_TRUE(isSame(filled(), expectedBlock)) << "also the next time";
}

TEST_F(WholeSession, LeavesNothingBehindWhenThePlayerCancels) {
  for (const char* const way : {"btnCancel", "btnClose"}) {
    const std::string settings = readBytes(settings_);
    const std::string preferences = readBytes(preferences_);
    const platform::RegFile registry = registry_.content();
    const HotkeyBlock block = filled();
    EXPECT_FALSE(open(way, changeEverything));
    EXPECT_FALSE(saved_);
    EXPECT_EQ(readBytes(settings_), settings) << way;
    EXPECT_EQ(readBytes(preferences_), preferences) << way;
    EXPECT_EQ(registry_.content(), registry) << way;
    EXPECT_TRUE(isSame(filled(), block)) << way;
  }
}

TEST_F(WholeSession, KeepsTheOldSettingsWhereTheFileCannotBeWritten) {
  const HotkeyBlock block = filled();
  std::filesystem::remove(settings_);
  std::filesystem::create_directory(settings_);
  EXPECT_TRUE(open("btnOK", changeEverything));
  EXPECT_FALSE(saved_);
  EXPECT_TRUE(isSame(filled(), block));
  EXPECT_TRUE(std::filesystem::is_directory(settings_));
}

}  // namespace
}  // namespace brennet::test
