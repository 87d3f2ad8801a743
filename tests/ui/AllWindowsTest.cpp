#include "tests/ui/AllWindows.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFileInfo>
#include <algorithm>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "tests/support/ScopedRegistry.h"

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

}  // namespace
}  // namespace brennet::test
