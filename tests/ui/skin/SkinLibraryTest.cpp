// The built library brings the skin with it, and takes it away when it is unloaded.

#include <gtest/gtest.h>

#include <QFile>
#include <QLibrary>

namespace {

bool skinIsThere() {
  return QFile::exists(QStringLiteral(":/skin/msgbox.qss")) &&
         QFile::exists(QStringLiteral(":/skin/image/wheel.png"));
}

TEST(SkinLibrary, HasTheSkinWhileItIsLoaded) {
  ASSERT_FALSE(skinIsThere());
  QLibrary library(QStringLiteral(BRENNET_LIBRARY));
  for (int round = 0; round < 3; ++round) {
    ASSERT_TRUE(library.load()) << qUtf8Printable(library.errorString());
    EXPECT_TRUE(skinIsThere());
    ASSERT_TRUE(library.unload()) << qUtf8Printable(library.errorString());
    EXPECT_FALSE(QFile::exists(QStringLiteral(":/skin")));
  }
}

}  // namespace
