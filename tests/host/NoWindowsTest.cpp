// A host without the application object that windows need.

#include <QGuiApplication>

#include <optional>

#include "tests/host/HostFixture.h"

namespace brennet::test {
namespace {

class NoWindowsTest : public HostFixture {
 protected:
  void expectNoDialog(const char* host) {
    const HotkeyBlock block = filled();
    bool saved = true;
    EXPECT_FALSE(brennet_.ShowSettingsDialog(&saved, 4711)) << host;
    EXPECT_FALSE(saved) << host;
    const HotkeyBlock after = filled();
    EXPECT_EQ(std::memcmp(&block, &after, sizeof(block)), 0) << host;
  }
};

TEST_F(NoWindowsTest, NoDialogIsShown) {
  expectNoDialog("without an application object");
  static int count = 1;
  static char name[] = "host";
  static char* arguments[] = {name, nullptr};
  std::optional<QCoreApplication> application(std::in_place, count, arguments);
  expectNoDialog("with one for programs without windows");
  application.reset();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // It is never deleted: the offscreen platform would leak its screen then.
  static const QGuiApplication* const gui = new QGuiApplication(count, arguments);
  Q_UNUSED(gui)
  expectNoDialog("with one for windows without widgets");
}

}  // namespace
}  // namespace brennet::test
