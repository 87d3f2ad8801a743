#include "ui/window/StyleSheet.h"

#include <gtest/gtest.h>

#include <QString>
#include <QWidget>

#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

constexpr const char* kBefore = "QWidget { color: red }";

class StyleSheetTest : public testing::Test {
 protected:
  StyleSheetTest() { widget_.setStyleSheet(QLatin1String(kBefore)); }

  QString fileWith(const char* content) {
    const auto path = folder_ / "sheet.qss";
    test::writeBytes(path, content);
    return QString::fromStdString(path.string());
  }

  test::TempFolder folder_;
  QWidget widget_;
};

TEST_F(StyleSheetTest, IsAppliedAsItStandsThere) {
  EXPECT_TRUE(loadStyleSheet(widget_, fileWith("QLabel { color: #123456 } /* \xE7\x9A\xAE */")));
  EXPECT_EQ(widget_.styleSheet(), QStringLiteral(u"QLabel { color: #123456 } /* 皮 */"));
}

TEST_F(StyleSheetTest, ThatIsEmptyChangesNothing) {
  EXPECT_TRUE(loadStyleSheet(widget_, fileWith("")));
  EXPECT_EQ(widget_.styleSheet(), QLatin1String(kBefore));
}

TEST_F(StyleSheetTest, ThatIsNotThereIsToldAndChangesNothing) {
  EXPECT_FALSE(loadStyleSheet(widget_, QStringLiteral(":/skin/none.qss")));
  EXPECT_EQ(widget_.styleSheet(), QLatin1String(kBefore));
}

// Qt prints a warning if a sheet cannot be parsed, and that fails the test.
TEST_F(StyleSheetTest, OfTheSkinIsUnderstoodByQt) {
  for (const char* const name : {":/skin/war3key.qss", ":/skin/msgbox.qss"}) {
    ASSERT_TRUE(loadStyleSheet(widget_, QLatin1String(name)));
    widget_.ensurePolished();
  }
}

}  // namespace
}  // namespace brennet
