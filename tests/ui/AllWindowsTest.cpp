#include "tests/ui/AllWindows.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDirIterator>
#include <QFileInfo>
#include <QLineEdit>
#include <QTranslator>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/KeySlot.h"
#include "tests/support/ScopedRegistry.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"
#include "ui/CHotkeySettingDlg.h"
#include "ui/capture/EditControl.h"
#include "ui/capture/FeatureKeys.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/COrrerySettingDlg.h"
#include "ui/window/Text.h"

namespace brennet::test {
namespace {

TEST(AllWindows, AreInTheListOfTheTests) {
  QDirIterator forms(QStringLiteral(BRENNET_FORMS), {QStringLiteral("*.ui")}, QDir::Files,
                     QDirIterator::Subdirectories);
  std::size_t count = 0;
  while (forms.hasNext()) {
    const std::string form = QFileInfo(forms.next()).completeBaseName().toStdString();
    const bool isListed = std::ranges::any_of(
        allWindows(), [&form](const WindowRow& row) { return form == row.form; });
    EXPECT_TRUE(isListed) << "give the window of " << form
                          << ".ui a row in tests/ui/AllWindows.cpp";
    ++count;
  }
  EXPECT_EQ(count, allWindows().size()) << "a row has no form any more";
}

TEST(AllWindows, AreKnownByTheNamesOfTheirForms) {
  const ScopedRegistry registry;
  HotkeyConfig config;
  Dota7KeyInfoManager manager;
  for (const WindowRow& row : allWindows()) {
    const auto window = row.make(config, manager, nullptr);
    EXPECT_EQ(window->objectName().toStdString(), row.form);
  }
}

TEST(AllWindows, AreMadeByTheDialog) {
  const ScopedRegistry registry;
  HotkeyConfig config;
  Dota7KeyInfoManager manager;
  const CHotkeySettingDlg dialog(config, manager);
  QWidgetList made = QApplication::topLevelWidgets() + dialog.findChildren<QWidget*>();
  for (const WindowRow& row : allWindows()) {
    const auto isIt = [&row](const QWidget* w) {
      return w->objectName() == QLatin1String(row.form);
    };
    EXPECT_EQ(std::ranges::any_of(made, isIt), row.isMadeAtOnce)
        << "make " << row.form << " in createPages() of ui/CHotkeySettingDlg.cpp";
  }
}

std::string nameOf(const Setting& row) {
  return {row.element.begin(), row.element.end()};
}

// All windows except the dialog, which is made of them.
class AllWindowsPages : public testing::Test {
 protected:
  AllWindowsPages() {
    for (const WindowRow& row : allWindows()) {
      if (row.isPage) pages_.push_back(row.make(config_, manager_, nullptr));
    }
  }

  template <class Control>
  [[nodiscard]] QList<Control*> controls() const {
    QList<Control*> found;
    for (const auto& page : pages_) found += page->template findChildren<Control*>();
    return found;
  }

  // The basic page makes its own Orrery window, and listens to no other.
  [[nodiscard]] static QList<QCheckBox*> boxesOfTheOrrery() {
    QList<QCheckBox*> boxes;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (qobject_cast<COrrerySettingDlg*>(window)) boxes += window->findChildren<QCheckBox*>();
    }
    return boxes;
  }

  const ScopedRegistry registry_;
  HotkeyConfig config_;
  Dota7KeyInfoManager manager_;
  std::vector<std::unique_ptr<QWidget>> pages_;
};

TEST_F(AllWindowsPages, HaveAFieldForEachKey) {
  constexpr KeySlot kShownNowhere[] = {remapSource(5), remapDestination(5)};
  std::vector<KeySlot> found(std::begin(kShownNowhere), std::end(kShownNowhere));
  for (const QLineEdit* const field : controls<QLineEdit>()) {
    const QString name = field->objectName();
    if (const auto slot = featureKeyOf(viewOf(name))) found.push_back(*slot);
    if (const auto slot = slotOfField(viewOf(name), BasicPage::Current)) found.push_back(*slot);
  }
  for (const Setting& row : kSettings) {
    if (row.role == KeyRole::None) continue;
    for (std::size_t i = 0; i < keyCount(row.id); ++i) {
      const KeySlot slot{row.id, static_cast<std::uint8_t>(i)};
      EXPECT_NE(std::ranges::find(found, slot), found.end())
          << "give key " << i << " of " << nameOf(row)
          << " a field with a name that ui/capture/FeatureKeys.h knows";
    }
  }
}

TEST_F(AllWindowsPages, HaveABoxForEachSwitch) {
  std::set<SettingId> found;
  for (QCheckBox* const box : controls<QCheckBox>() + boxesOfTheOrrery()) {
    const HotkeyScheme before = config_.scheme();
    box->toggle();
    for (const Setting& row : kSettings) {
      const auto* const kind = std::get_if<SwitchSetting>(&row.kind);
      if (kind != nullptr && before.*kind->field != config_.scheme().*kind->field) {
        found.insert(row.id);
      }
    }
  }
  for (const Setting& row : kSettings) {
    if (!std::holds_alternative<SwitchSetting>(row.kind)) continue;
    EXPECT_TRUE(found.contains(row.id))
        << "give " << nameOf(row) << " a row in options() of ui/pages/CBasicSetting7Widget.cpp";
  }
}

}  // namespace
}  // namespace brennet::test
