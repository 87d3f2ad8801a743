#include "host/LoadTrace.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "host/CBrennetImpl.h"
#include "tests/host/HostFixture.h"

namespace brennet {
namespace {

using namespace test;
using LoadTraceOf = HostFixture;

TEST_F(LoadTraceOf, ALoadGoesToTheDebugOutput) {
  static QStringList messages;
  const auto before = qInstallMessageHandler(
      [](QtMsgType type, const QMessageLogContext& context, const QString& message) {
        EXPECT_EQ(type, QtDebugMsg);
        EXPECT_STREQ(context.category, kLoadCategory);
        messages += message;
      });
  messages.clear();
  EXPECT_TRUE(
      loadText("<KeyInfo><LastSaveTime>1</LastSaveTime><KeyInfo_1><HotkeyContrl>%s%n"
               "</HotkeyContrl></KeyInfo_1></KeyInfo>"));
  qInstallMessageHandler(before);
  EXPECT_EQ(messages, QStringList(QStringLiteral("line 1, column 51: setting group 2, hotkeys on "
                                                 "and off: \"%s%n\" is no key")));
}

// A record from the game goes through a copy of the settings, but the report is about the load.
TEST_F(LoadTraceOf, ALoadIsThereUntilTheNextOne) {
  std::string text = kDefaults;
  text.replace(text.find("22272"), 5, "20736");
  ASSERT_TRUE(loadText(text));
  const LoadReport& report = static_cast<const CBrennetImpl&>(brennet_).config().loadReport();
  EXPECT_EQ(report.droppedKeys.size(), 1U);
  HotkeyBlock block = filled();
  block.zoomValue = 90;
  ASSERT_EQ(brennet_.ApplyHotkeyBlock(&block, 5), 0);
  ASSERT_TRUE(brennet_.SetEnabled(false, 6));
  EXPECT_EQ(report.droppedKeys.size(), 1U);
  ASSERT_TRUE(loadText(readBytes(settings_)));
  EXPECT_EQ(report.droppedKeys.size(), 0U);
}

}  // namespace
}  // namespace brennet
