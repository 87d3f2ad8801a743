// The guides for players name the controls as the windows do, in each language.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QTranslator>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CDotA7BasicSetting.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/pages/KeyMapWindow.h"
#include "ui/pages/SchemeTransferWindow.h"

namespace brennet::test {
namespace {

struct Guide {
  const char* file;
  const char* catalogue;

  friend void PrintTo(const Guide& guide, std::ostream* out) { *out << guide.file; }
};

// What needs no name of its own: controls whose object names begin so.
constexpr const char* kUnnamed[] = {
    "btnOK",       "btnCancel",  // one section for all windows
    "chkGroupKey",               // the presets, which are told by their keys
    "opt",                       // the layers of the key map
    "chk_",                      // the options of DotA 7, which are only summed up
};

// Lines are broken anywhere in Chinese.
QString withoutBlanks(QString text) {
  text.remove(QRegularExpression(QStringLiteral("\\s")));
  return text;
}

class UsersGuide : public testing::TestWithParam<Guide> {
 protected:
  UsersGuide() {
    EXPECT_TRUE(
        catalogue_.load(QLatin1String(GetParam().catalogue), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&catalogue_);
    guide_ = withoutBlanks(QString::fromStdString(readBytes(projectFile(GetParam().file))));
  }

  void expectNamed(const QObject& control, QString text) {
    for (const char* const beginning : kUnnamed) {
      if (control.objectName().startsWith(QLatin1String(beginning))) return;
    }
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(QChar(u'\uFF1A'))) text.chop(1);
    EXPECT_TRUE(guide_.contains(withoutBlanks(text)))
        << "tell players of \"" << qPrintable(text) << "\" in " << GetParam().file;
  }

  void expectButtonsNamed(const QWidget& window) {
    for (const auto* const button : window.findChildren<QAbstractButton*>()) {
      if (!button->text().isEmpty()) expectNamed(*button, button->text());
    }
  }

 private:
  QTranslator catalogue_;
  QString guide_;
};

TEST_P(UsersGuide, NamesWhatIsOnThePages) {
  const ScopedRegistry registry;
  HotkeyConfig config;
  Dota7KeyInfoManager manager;
  const CBasicSetting7Widget page(config, nullptr);
  const CDotA7BasicSetting dota7(manager, nullptr);
  for (const QWidget* const each : std::initializer_list<const QWidget*>{&page, &dota7}) {
    expectButtonsNamed(*each);
    for (const auto* const group : each->findChildren<QGroupBox*>()) {
      expectNamed(*group, group->title());
    }
  }
}

TEST_P(UsersGuide, NamesWhatIsInTheOtherWindows) {
  expectButtonsNamed(COrrerySettingDlg());
  const KeyMapWindow keyMap(nullptr);
  expectButtonsNamed(keyMap);
  const auto& search = *keyMap.findChild<QLabel*>(QStringLiteral("lblSearch"));
  expectNamed(search, search.text());
  const SchemeTransferWindow preview(QString(), {}, {SchemeOffer()}, nullptr);
  expectButtonsNamed(preview);
  const auto& source = *preview.findChild<QLabel*>(QStringLiteral("lblSource"));
  expectNamed(source, source.text());
}

TEST_P(UsersGuide, NamesWhatIsAtTheTop) {
  const ScopedRegistry registry;
  HotkeyConfig config;
  Dota7KeyInfoManager manager;
  const CHotkeySettingDlg dialog(config, manager);
  for (const char* const name : {"chkUseHotkeySettings", "btnCopyFrom", "btnSwitchPlat", "btnUndo",
                                 "btnRedo", "btnExport", "btnImport"}) {
    const auto& button = *dialog.findChild<QAbstractButton*>(QLatin1String(name));
    expectNamed(button, button.text());
  }
  for (const char* const name : {"lblSetting", "lblResetToDefaultSetting", "lblKeyMap"}) {
    const auto& label = *dialog.findChild<QLabel*>(QLatin1String(name));
    expectNamed(label, label.text());
  }
}

INSTANTIATE_TEST_SUITE_P(In, UsersGuide,
                         testing::Values(Guide{"docs/users.md", "brennet_en.qm"},
                                         Guide{"docs/users.zh_CN.md", "brennet_zh_CN.qm"}),
                         [](const auto& guide) {
                           return std::string(guide.param.file) == "docs/users.md"
                                      ? std::string("English")
                                      : std::string("Chinese");
                         });

}  // namespace
}  // namespace brennet::test
