// Main of the tests of windows, which run without a screen and look the same on all machines.

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>

#include "platform/Export.h"
#include "tests/support/World.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/fonts/TestFonts.h"

// The leak sanitizer looks this function up by name. Fontconfig keeps what it has read.
extern "C" BRENNET_EXPORT const char* __lsan_default_suppressions() {
  return "leak:libfontconfig";
}

namespace {

// No test means anything without its fonts. As an environment, this lets tests be listed without.
class Fonts : public testing::Environment {
  void SetUp() override { ASSERT_TRUE(brennet::test::hasFontsOfTheSet()); }
};

}  // namespace

int main(int argc, char** argv) {
  brennet::test::leaveTheCallersWorld();
  testing::InitGoogleTest(&argc, argv);
  const QByteArray platform = qgetenv("BRENNET_TEST_PLATFORM");
  qputenv("QT_QPA_PLATFORM", platform.isEmpty() ? "offscreen" : platform);
  brennet::test::useFontSetOfTheEnvironment();
  brennet::test::failOnWarnings();
  // It is never deleted: the offscreen platform would leak its screen then, and the leak sanitizer
  // would report that.
  static const QApplication* const application = new QApplication(argc, argv);
  Q_UNUSED(application)
  testing::AddGlobalTestEnvironment(new Fonts);
  brennet::test::closeUnansweredBoxes();
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
  return RUN_ALL_TESTS();
}
