// What the settings dialog asks before it clears or fills a scheme, and what the answer does.

#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>

#include "model/RecommendedScheme.h"
#include "tests/ui/SettingsDialogTest.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/CChatRouletteSettingWidget.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

class CHotkeySettingDlgBoxesTest : public SettingsDialog {
 protected:
  using Signal = void (CHotkeySettingDlg::*)();

  void confirm(Signal question) {
    const auto box = answer(QMessageBox::Ok);
    emit(dialog.get()->*question)();
  }
  void refuse(Signal question) {
    const auto box = answer(QMessageBox::Cancel);
    emit(dialog.get()->*question)();
  }
  // A scheme whose phrases are on three pages.
  void typePhrases() {
    config.editableScheme()->QuickChat[1] = u"glhf";
    config.editableScheme()->ChatWheel[1] = u"wheel";
    dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
    ASSERT_EQ(on<ChatKeySettingWidget>("chatLineEdit_2").text(), QStringLiteral("glhf"));
    ASSERT_EQ(on<CChatRouletteSettingWidget>("edtChatWheel_2").text(), QStringLiteral("wheel"));
  }
  void expectNoPhrases() {
    EXPECT_EQ(config.scheme().QuickChat[1], u"");
    EXPECT_EQ(on<ChatKeySettingWidget>("chatLineEdit_2").text(), QString());
    EXPECT_EQ(config.scheme().ChatWheel[1], u"");
    EXPECT_EQ(on<CChatRouletteSettingWidget>("edtChatWheel_2").text(), QString());
  }

  static constexpr Signal kReset = &CHotkeySettingDlg::resetSetting;
  static constexpr Signal kRecommended = &CHotkeySettingDlg::useRecommendedSetting;
};

TEST_F(CHotkeySettingDlgBoxesTest, AskBeforeTheyAct) {
  struct {
    Signal question;
    QMessageBox::Icon icon;
    const char* title;
    const char* text;
  } const kRows[] = {
      {kReset, QMessageBox::Warning, "reset settings",
       "After resetting, your modification on basic and advanced settings will lost.\nAre you "
       "sure to continue?"},
      {kRecommended, QMessageBox::Question, "use system recommended settings",
       "Are you sure to use system recommended settings?"},
  };
  dialog->show();
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.title);
    const auto box = whenBoxIsShown([&](QMessageBox& shown) {
      EXPECT_NE(qobject_cast<CMsgBox*>(&shown), nullptr);
      EXPECT_EQ(shown.parentWidget(), dialog.get());
      EXPECT_EQ(shown.icon(), row.icon);
      EXPECT_EQ(shown.windowTitle(), QLatin1String(row.title));
      EXPECT_EQ(shown.text(), QLatin1String(row.text));
      EXPECT_EQ(shown.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
      EXPECT_EQ(shown.defaultButton(), shown.button(QMessageBox::Ok));
      shown.reject();
    });
    emit(dialog.get()->*row.question)();
  }
}

// A catalogue that has a different text for the question in the DotA 7 mode.
class Dota7Question : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* /*text*/, const char* comment,
                                  int /*number*/) const override {
    const bool isMeant =
        qstrcmp(context, "CHotkeySettingDlg") == 0 && qstrcmp(comment, "DotA 7") == 0;
    return isMeant ? QStringLiteral("the DotA 7 keys?") : QString();
  }
};

TEST_F(CHotkeySettingDlgBoxesTest, CanSpeakOfTheKeysOfTheirMode) {
  Dota7Question catalogue;
  QCoreApplication::installTranslator(&catalogue);
  const auto asked = [this] {
    QString text;
    const auto box = whenBoxIsShown([&text](QMessageBox& shown) {
      text = shown.text();
      shown.reject();
    });
    emit dialog->resetSetting();
    return text;
  };
  EXPECT_TRUE(asked().startsWith(QLatin1String("After resetting")));
  dialog->onSwitchDota7KeySettingDlg();
  EXPECT_EQ(asked(), QStringLiteral("the DotA 7 keys?"));
  QCoreApplication::removeTranslator(&catalogue);
  EXPECT_TRUE(asked().startsWith(QLatin1String("After resetting"))) << "as without a catalogue";
}

TEST_F(CHotkeySettingDlgBoxesTest, ResetTheSchemeWhenThePlayerIsSure) {
  recommend(*config.editableScheme());
  typePhrases();
  const HotkeyScheme before = config.scheme();
  refuse(kReset);
  EXPECT_EQ(config.scheme(), before);
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  confirm(kReset);
  EXPECT_EQ(config.scheme().HeroSkillKey[0], kNoKey);
  EXPECT_EQ(skill(1).text(), QString());
  expectNoPhrases();
}

TEST_F(CHotkeySettingDlgBoxesTest, ResetWhatTheAdvancedPageShows) {
  config.editableScheme()->ShowFBlood = KeyWord('B', 0);
  dialog = std::make_unique<CHotkeySettingDlg>(config, manager);
  ASSERT_EQ(on<CAdvancedSettingWidget>("edtShowFBlood").text(), QStringLiteral("B"));
  confirm(kReset);
  EXPECT_EQ(on<CAdvancedSettingWidget>("edtShowFBlood").text(), QString());
}

TEST_F(CHotkeySettingDlgBoxesTest, ResetTheRegistryInItsMode) {
  recommend(*config.editableScheme());
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  dialog->onSwitchDota7KeySettingDlg();
  const HotkeyScheme before = config.scheme();
  refuse(kReset);
  EXPECT_EQ(stopKey().text(), QStringLiteral("S"));
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('S'));
  confirm(kReset);
  EXPECT_EQ(stopKey().text(), QString());
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue(0));
  EXPECT_EQ(config.scheme(), before) << "the other mode has its own reset";
  EXPECT_TRUE(manager.records().empty()) << "all is written";
  dialog->reject();
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('S')) << "Cancel takes it back";
}

TEST_F(CHotkeySettingDlgBoxesTest, LeaveTheRegistryAloneInTheOtherMode) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  const platform::RegFile before = registry.content();
  confirm(kReset);
  confirm(kRecommended);
  EXPECT_EQ(registry.content(), before);
}

TEST_F(CHotkeySettingDlgBoxesTest, PutTheRecommendedKeysInWhenThePlayerIsSure) {
  typePhrases();
  const HotkeyScheme before = config.scheme();
  refuse(kRecommended);
  EXPECT_EQ(config.scheme(), before);
  confirm(kRecommended);
  EXPECT_EQ(config.scheme().HeroSkillKey[0], KeyWord('Q', 0));
  EXPECT_EQ(skill(1).text(), QStringLiteral("Q"));
  expectNoPhrases();
}

TEST_F(CHotkeySettingDlgBoxesTest, RecommendNothingInTheDota7Mode) {
  typePhrases();
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  dialog->onSwitchDota7KeySettingDlg();
  const HotkeyScheme before = config.scheme();
  const platform::RegFile registryBefore = registry.content();
  confirm(kRecommended);
  EXPECT_EQ(config.scheme(), before);
  EXPECT_EQ(registry.content(), registryBefore);
  EXPECT_EQ(on<ChatKeySettingWidget>("chatLineEdit_2").text(), QStringLiteral("glhf"));
}

// Links and the signals that they send, disconnected from what would ask the player.
class CHotkeySettingDlgBoxesOfLinks : public SettingsDialog {
 protected:
  CHotkeySettingDlgBoxesOfLinks() {
    QObject::disconnect(dialog.get(), &CHotkeySettingDlg::resetSetting, nullptr, nullptr);
    QObject::disconnect(dialog.get(), &CHotkeySettingDlg::useRecommendedSetting, nullptr, nullptr);
    dialog->show();
  }
};

TEST_F(CHotkeySettingDlgBoxesOfLinks, AreClicked) {
  const QSignalSpy resets(dialog.get(), &CHotkeySettingDlg::resetSetting);
  const QSignalSpy recommendations(dialog.get(), &CHotkeySettingDlg::useRecommendedSetting);
  clickLink(resetLink());
  EXPECT_EQ(resets.count(), 1);
  QTest::mouseRelease(&resetLink(), Qt::LeftButton, Qt::NoModifier, QPoint(-1, 2));
  EXPECT_EQ(resets.count(), 1) << "outside";
  EXPECT_EQ(recommendations.count(), 0);
  auto& recommended = find<QLabel>("lblUseRecommendedSetting");
  recommended.show();
  clickLink(recommended);
  EXPECT_EQ(recommendations.count(), 1);
  EXPECT_EQ(resets.count(), 1);
}

TEST_F(CHotkeySettingDlgBoxesOfLinks, AreUsedByTheKeyboard) {
  const QSignalSpy resets(dialog.get(), &CHotkeySettingDlg::resetSetting);
  struct {
    Qt::Key key;
    int clicks;
  } const kRows[] = {{Qt::Key_Space, 1},  {Qt::Key_Enter, 1}, {Qt::Key_Return, 0},
                     {Qt::Key_Escape, 0}, {Qt::Key_Tab, 0},   {Qt::Key_A, 0}};
  int clicks = 0;
  for (const auto& row : kRows) {
    QTest::keyPress(&resetLink(), row.key);
    EXPECT_EQ(resets.count(), clicks) << "only when it goes up: " << row.key;
    QTest::keyRelease(&resetLink(), row.key);
    clicks += row.clicks;
    EXPECT_EQ(resets.count(), clicks) << row.key;
  }
}

TEST_F(CHotkeySettingDlgBoxesOfLinks, AreClickedByNoKeyThatWentDownElsewhere) {
  const QSignalSpy resets(dialog.get(), &CHotkeySettingDlg::resetSetting);
  QTest::keyRelease(&resetLink(), Qt::Key_Space);
  EXPECT_EQ(resets.count(), 0) << "nothing went down";
  auto& recommended = find<QLabel>("lblUseRecommendedSetting");
  QTest::keyPress(&recommended, Qt::Key_Space);
  QTest::keyRelease(&resetLink(), Qt::Key_Space);
  EXPECT_EQ(resets.count(), 0) << "it went down on the other link";
  QTest::keyPress(&resetLink(), Qt::Key_Space);
  QFocusEvent leaves(QEvent::FocusOut);
  QCoreApplication::sendEvent(&resetLink(), &leaves);
  QTest::keyRelease(&resetLink(), Qt::Key_Space);
  EXPECT_EQ(resets.count(), 0) << "the focus was away";
  QTest::keyPress(&resetLink(), Qt::Key_A);
  QTest::keyRelease(&resetLink(), Qt::Key_Space);
  EXPECT_EQ(resets.count(), 0) << "another key went down";
  QTest::keyPress(&resetLink(), Qt::Key_Space);
  QTest::keyRelease(&resetLink(), Qt::Key_A);
  QTest::keyRelease(&resetLink(), Qt::Key_Space);
  EXPECT_EQ(resets.count(), 0) << "another key went up between";
}

// Keys as a system sends them: each press and each release goes to whatever has the focus then.
class CHotkeySettingDlgBoxesThatAsk : public SettingsDialog {
 protected:
  void open() {
    ASSERT_NO_FATAL_FAILURE(show());
    resetLink().setFocus();
    ASSERT_TRUE(resetLink().hasFocus());
  }
  // Presses the key that opens a box, then the key that answers it, which is still down when the
  // box is gone.
  void askAndAnswer(QMessageBox::StandardButton button) {
    const auto box = whenBoxIsShown([button](QMessageBox& shown) {
      auto* const focused = shown.button(button);
      focused->setFocus();
      QTest::keyPress(focused, Qt::Key_Enter);
    });
    QTest::keyClick(&resetLink(), Qt::Key_Space);
  }
};

TEST_F(CHotkeySettingDlgBoxesThatAsk, IsNotClickedByTheKeyThatAnswers) {
  ASSERT_NO_FATAL_FAILURE(open());
  for (const auto button : {QMessageBox::Ok, QMessageBox::Cancel}) {
    askAndAnswer(button);
    const QSignalSpy resets(dialog.get(), &CHotkeySettingDlg::resetSetting);
    {
      const NoBoxes noBoxes;
      QTest::keyRelease(&resetLink(), Qt::Key_Enter);
      QCoreApplication::processEvents();
    }
    EXPECT_EQ(resets.count(), 0);
  }
}

TEST_F(CHotkeySettingDlgBoxesThatAsk, AsksAgainWhenAKeyGoesDownOnIt) {
  ASSERT_NO_FATAL_FAILURE(open());
  askAndAnswer(QMessageBox::Cancel);
  QTest::keyRelease(&resetLink(), Qt::Key_Enter);
  askAndAnswer(QMessageBox::Cancel);
  // The release of the key that answered may also go unseen.
  askAndAnswer(QMessageBox::Cancel);
  QTest::keyRelease(&resetLink(), Qt::Key_Enter);
  const auto box = answer(QMessageBox::Cancel);
  QTest::keyClick(&resetLink(), Qt::Key_Enter);
}

}  // namespace
}  // namespace brennet::test
