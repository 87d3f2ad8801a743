// The language of the sample host's windows.

#include "samples/host/Catalogue.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>

namespace {

const QString kFolder = QStringLiteral(BRENNET_TRANSLATIONS);

class CatalogueTest : public testing::Test {
 protected:
  static QString cancel() { return QCoreApplication::translate("QDialogButtonBox", "Cancel"); }

 private:
  static inline int argc_ = 1;
  static inline char name_[] = "samples_tests";
  static inline char* argv_[] = {name_, nullptr};
  QCoreApplication application_{argc_, argv_};
};

TEST_F(CatalogueTest, IsOfTheFirstLanguageThatThereIs) {
  struct Row {
    QStringList languages;
    const char* file;
  };
  const QString zh = QStringLiteral("zh-Hans-CN");
  const QString en = QStringLiteral("en-US");
  const QString de = QStringLiteral("de-DE");
  const Row rows[] = {{{zh}, "brennet_zh_CN.qm"},
                      {{zh, en}, "brennet_zh_CN.qm"},
                      {{en, zh}, "brennet_en.qm"},
                      {{de, zh}, "brennet_zh_CN.qm"},
                      {{QStringLiteral("zh")}, "brennet_zh_CN.qm"},
                      {{QStringLiteral("en")}, "brennet_en.qm"},
                      {{de}, "brennet_en.qm"},
                      {{QStringLiteral("C")}, "brennet_en.qm"},
                      {{}, "brennet_en.qm"}};
  for (const Row& row : rows) {
    const Catalogue catalogue(kFolder, row.languages);
    EXPECT_EQ(QFileInfo(catalogue.file()).fileName(), QLatin1String(row.file))
        << row.languages.join(QLatin1Char(' ')).toStdString();
  }
}

TEST_F(CatalogueTest, TranslatesAsLongAsItLives) {
  {
    const Catalogue catalogue(kFolder, {QStringLiteral("zh-CN")});
    EXPECT_EQ(cancel(), QStringLiteral("取消"));
  }
  EXPECT_EQ(cancel(), QStringLiteral("Cancel"));
}

TEST_F(CatalogueTest, MayBeMissing) {
  const QTemporaryDir empty;
  const Catalogue catalogue(empty.path(), {QStringLiteral("zh-CN")});
  EXPECT_EQ(catalogue.file(), QString());
  EXPECT_EQ(cancel(), QStringLiteral("Cancel"));
}

TEST_F(CatalogueTest, LiesBesideTheProgram) {
  const Catalogue catalogue;
  const Catalogue expected(kFolder, QLocale::system().uiLanguages());
  ASSERT_NE(catalogue.file(), QString());
  const QFileInfo file(catalogue.file());
  EXPECT_EQ(file.dir(),
            QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/translations")));
  EXPECT_EQ(file.fileName(), QFileInfo(expected.file()).fileName());
}

}  // namespace
