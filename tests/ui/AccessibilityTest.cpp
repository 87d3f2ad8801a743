// What programs that read the screen to a player find: a role and a name for each control, by which
// it can be told from all others.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QSet>
#include <QTranslator>

#include <memory>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/FixedKeys.h"
#include "model/KeyConflicts.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/ui/AllWindows.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/pages/PageChecks.h"
#include "tests/ui/screens/TestScreenReader.h"
#include "ui/capture/RefusalText.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/window/CMsgBox.h"

namespace brennet::test {
namespace {

// What a player can use, by its role.
bool isControl(const QAccessibleInterface& part) {
  switch (part.role()) {
    case QAccessible::EditableText:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::PushButton:
    case QAccessible::ComboBox:
    case QAccessible::Link:
    case QAccessible::Table:
    case QAccessible::Tree:
      return true;
    default:
      return false;
  }
}

class Accessibility : public testing::TestWithParam<const char*> {
 protected:
  Accessibility() {
    EXPECT_TRUE(catalogue_.load(QStringLiteral("brennet_%1.qm").arg(QLatin1String(GetParam())),
                                QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&catalogue_);
  }

  // Fails for each control below `part` that has no name, or that of another control.
  void check(QAccessibleInterface& part) {
    if (part.state().invisible) return;
    if (isControl(part)) {
      const QString name = part.text(QAccessible::Name);
      const QString where = part.object() != nullptr ? part.object()->objectName() : QString();
      EXPECT_FALSE(name.trimmed().isEmpty()) << qPrintable(where) << " has no name";
      EXPECT_FALSE(names_.contains(name))
          << qPrintable(where) << " has the name of another control: " << qPrintable(name);
      names_ += name;
      if (part.role() == QAccessible::ComboBox) return;
    }
    for (int i = 0; i < part.childCount(); ++i) {
      if (QAccessibleInterface* const child = part.child(i)) check(*child);
    }
  }

  void checkWindow(QWidget& window) {
    names_.clear();
    window.show();
    QAccessibleInterface* const root = QAccessible::queryAccessibleInterface(&window);
    ASSERT_NE(root, nullptr);
    check(*root);
    EXPECT_FALSE(names_.isEmpty()) << "nothing to use";
    window.hide();
  }

 private:
  QTranslator catalogue_;
  QSet<QString> names_;
};

TEST_P(Accessibility, NamesEachControlOfEachWindow) {
  const ScopedRegistry registry;
  HotkeyConfig config;
  Dota7KeyInfoManager manager;
  for (const WindowRow& row : allWindows()) {
    SCOPED_TRACE(row.form);
    const auto window = row.make(config, manager, nullptr);
    checkWindow(*window);
  }
}

TEST_P(Accessibility, NamesEachButtonOfABox) {
  CMsgBox box(QMessageBox::Warning, QStringLiteral("title"), QStringLiteral("text"),
              QMessageBox::Ok | QMessageBox::Cancel);
  box.setButtonTexts();
  checkWindow(box);
}

// Without a message box, a screen reader has only the description of the box to read.
TEST(AccessibilityOfRefusals, DescribesWhyAPresetIsNotChosen) {
  HotkeyConfig config;
  config.editableScheme()->HeroSkillKey[0] = kItemPresetKeys[1][0];
  CBasicSetting7Widget page(config, nullptr);
  auto& box = *page.findChild<QCheckBox*>(QStringLiteral("chkGroupKey2"));
  const auto description = [&box] {
    return QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Description);
  };
  EXPECT_EQ(description(), QString());
  page.onToggled_GroupKey2(true);
  EXPECT_EQ(description(), refusalText(takenKeysOfPreset(config.scheme(), 1), KeyWindow::Main));
}

// What a key field is, where it stands and what it holds, for those who do not see it.
TEST(AccessibilityOfKeyFields, SaysAllThatIsSeen) {
  QTranslator english;
  ASSERT_TRUE(english.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
  QCoreApplication::installTranslator(&english);
  HotkeyConfig config;
  config.editableScheme()->HeroSkillKey[8] = KeyWord('Q', KeyWord::kAlt);
  CBasicSetting7Widget page(config, nullptr);
  const auto told = [&page](const char* name, QAccessible::Text what) {
    auto* const control = page.findChild<QWidget*>(QLatin1String(name));
    return QAccessible::queryAccessibleInterface(control)->text(what).toStdString();
  };
  EXPECT_EQ(told("edtSkill_9", QAccessible::Name), "Hero skill 9 (top row, first)");
  EXPECT_EQ(told("edtSkill_9", QAccessible::Value), "Alt + Q");
  EXPECT_EQ(told("edtSkill_9", QAccessible::Description),
            "Key field: takes the next key that you press");
  EXPECT_EQ(told("btn_skillcast_9", QAccessible::Name), "Hero skill 9: quick cast");
}

TEST(AccessibilityEvents, TellOfARefusedPreset) {
  HotkeyConfig config;
  config.editableScheme()->HeroSkillKey[0] = kItemPresetKeys[1][0];
  CBasicSetting7Widget page(config, nullptr);
  const auto& box = *page.findChild<QCheckBox*>(QStringLiteral("chkGroupKey2"));
  const TestScreenReader reader;
  page.onToggled_GroupKey2(true);
  EXPECT_TRUE(reader.wasTold(box, QAccessible::DescriptionChanged));
  EXPECT_TRUE(reader.wasTold(box, QAccessible::Alert));
}

TEST(AccessibilityEvents, TellOfAChosenPreset) {
  HotkeyConfig config;
  CBasicSetting7Widget page(config, nullptr);
  auto& box = *page.findChild<QCheckBox*>(QStringLiteral("chkGroupKey2"));
  const TestScreenReader reader;
  box.click();
  EXPECT_TRUE(reader.wasTold(box, QAccessible::StateChanged));
  EXPECT_FALSE(reader.wasTold(box, QAccessible::Alert));
}

TEST(AccessibilityEvents, TellOfARefusedKey) {
  HotkeyConfig config;
  config.editableScheme()->HeroSkillKey[0] = KeyWord('Q', 0);
  config.editableScheme()->HeroSkillKey[1] = KeyWord('W', 0);
  CBasicSetting7Widget page(config, nullptr);
  page.show();
  auto& field = *page.findChild<QLineEdit*>(QStringLiteral("edtSkill_2"));
  const TestScreenReader reader;
  const auto box = whenBoxIsShown([&](QMessageBox& shown) {
    EXPECT_TRUE(reader.wasTold(shown, QAccessible::Alert));
    shown.accept();
  });
  pressKey(field, Qt::Key_Q);
  EXPECT_TRUE(reader.wasTold(field, QAccessible::TextRemoved)) << "the field is emptied";
}

INSTANTIATE_TEST_SUITE_P(In, Accessibility, testing::Values("en", "zh_CN"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace brennet::test
