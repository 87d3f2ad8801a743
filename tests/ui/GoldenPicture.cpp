#include "tests/ui/GoldenPicture.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>

#include <algorithm>
#include <cstdlib>

#include "tests/support/Golden.h"
#include "tests/support/TestData.h"

namespace brennet::test {
namespace {

constexpr int kTolerance = 8;  // of 255 in each colour

std::string pngOf(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
  return bytes.toStdString();
}

bool areAlike(QRgb one, QRgb other) {
  return std::abs(qRed(one) - qRed(other)) <= kTolerance &&
         std::abs(qGreen(one) - qGreen(other)) <= kTolerance &&
         std::abs(qBlue(one) - qBlue(other)) <= kTolerance;
}

std::string sizeText(const QImage& image) {
  return std::to_string(image.width()) + " x " + std::to_string(image.height());
}

// In words; nothing if the pictures are the same.
std::string difference(const QImage& stored, const QImage& actual) {
  if (stored.size() != actual.size()) return sizeText(stored) + " before, now " + sizeText(actual);
  int count = 0;
  QRect place;
  for (int y = 0; y < actual.height(); ++y) {
    for (int x = 0; x < actual.width(); ++x) {
      if (areAlike(stored.pixel(x, y), actual.pixel(x, y))) continue;
      ++count;
      place |= QRect(x, y, 1, 1);
    }
  }
  if (count == 0) return {};
  return std::to_string(count) + " pixels differ, from (" + std::to_string(place.left()) + ", " +
         std::to_string(place.top()) + ") to (" + std::to_string(place.right()) + ", " +
         std::to_string(place.bottom()) + ")";
}

void keep(const QImage& actual, const std::string& name) {
  QDir folder(QCoreApplication::applicationDirPath());
  EXPECT_TRUE(folder.mkpath(QStringLiteral("pictures")));
  const QString file = folder.filePath(QStringLiteral("pictures/") +
                                       QFileInfo(QString::fromStdString(name)).fileName());
  EXPECT_TRUE(actual.save(file));
  std::fprintf(stderr, "The picture as it is now: %s\n", qUtf8Printable(file));
}

}  // namespace

BitLetters::BitLetters()
    : id_(QFontDatabase::addApplicationFont(
          QString::fromLocal8Bit(projectFile("tests/ui/fonts/BitLetters.ttf").c_str()))) {
  const QStringList families = QFontDatabase::applicationFontFamilies(id_);
  EXPECT_EQ(families, QStringList(QStringLiteral("Bit Letters")));
  QFont font(QStringLiteral("Bit Letters"));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(static_cast<QFont::StyleStrategy>(
      QFont::NoFontMerging | QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  QApplication::setFont(font);
}

BitLetters::~BitLetters() {
  QApplication::setFont(before_);
  EXPECT_TRUE(QFontDatabase::removeApplicationFont(id_));
}

void expectGoldenPicture(const std::string& name, const QImage& actual) {
  const QImage picture = actual.convertToFormat(QImage::Format_RGB32);
  expectGolden(name, pngOf(picture), [&](const std::string& bytes) {
    const QImage stored = QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
    return difference(stored.convertToFormat(QImage::Format_RGB32), picture);
  });
  if (testing::Test::HasFailure()) keep(picture, name);
}

}  // namespace brennet::test
