// What is below ":/skin"; the style sheets name nothing else.

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QResource>

#include <set>
#include <string>

#include "tests/support/TempFolder.h"

namespace {

QByteArray read(const QString& name) {
  QFile file(name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qUtf8Printable(name);
  return file.readAll();
}

struct Picture {
  const char* name;
  QSize size;
};

// The states of a picture are stacked: its height is their number times the height of one.
const Picture kPictures[] = {
    {"auto", {13, 2 * 13}},
    {"bg", {85, 3 * 26}},
    {"box", {55, 2 * 55}},
    {"btnSwitch_1", {157, 28}},
    {"btnSwitch_2", {157, 28}},
    {"chat", {55, 2 * 55}},
    {"chatHotKey_1", {55, 55}},
    {"chatHotKey_2", {55, 55}},
    {"chat_hover", {130, 28}},
    {"chat_normal", {130, 28}},
    {"closebtn_4s", {10, 4 * 10}},
    {"combo_droparrow", {26, 26}},
    {"dota7", {55, 2 * 55}},
    {"down", {12, 12}},
    {"up", {12, 12}},
    {"wheel", {380, 380}},
};

QString pathOf(const char* picture) {
  return QStringLiteral(":/skin/image/%1.png").arg(QLatin1String(picture));
}

TEST(Resources, AreTheSheetsAndThePictures) {
  std::set<std::string> expected = {":/skin/msgbox.qss", ":/skin/war3key.qss"};
  for (const Picture& picture : kPictures) expected.insert(pathOf(picture.name).toStdString());
  std::set<std::string> found;
  QDirIterator files(QStringLiteral(":/skin"), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) found.insert(files.next().toStdString());
  EXPECT_EQ(found, expected);
}

TEST(Resources, AreTheFilesOfTheSource) {
  QDirIterator files(QStringLiteral(":/skin"), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString name = files.next();
    const QString source = QStringLiteral(BRENNET_SKIN_FOLDER) + name.mid(6);
    EXPECT_EQ(read(name).toStdString(), brennet::test::readBytes(source.toStdString()))
        << qUtf8Printable(name);
  }
}

TEST(Resources, AreNotCompressedAndHaveNoTime) {
  QDirIterator files(QStringLiteral(":/skin"), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QResource resource(files.next());
    EXPECT_EQ(resource.compressionAlgorithm(), QResource::NoCompression);
    EXPECT_FALSE(resource.lastModified().isValid());
  }
}

TEST(Resources, HavePicturesOfTheFixedSizes) {
  for (const Picture& picture : kPictures) {
    EXPECT_EQ(QImage(pathOf(picture.name)).size(), picture.size) << picture.name;
  }
}

// The names in url(...) of a style sheet.
QStringList urlsOf(const QString& sheet) {
  const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
  QStringList names;
  auto matches = url.globalMatch(QString::fromUtf8(read(sheet)));
  while (matches.hasNext()) names.append(matches.next().captured(1));
  return names;
}

TEST(ResourcesStyleSheets, NameOnlyPicturesThatAreThere) {
  for (const char* const sheet : {":/skin/war3key.qss", ":/skin/msgbox.qss"}) {
    const QStringList names = urlsOf(QLatin1String(sheet));
    EXPECT_FALSE(names.isEmpty()) << sheet;
    for (const QString& name : names) EXPECT_TRUE(QFile::exists(name)) << qUtf8Printable(name);
  }
}

}  // namespace
