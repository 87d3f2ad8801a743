// The pictures are what their sources draw, on any machine.

#include <gtest/gtest.h>

#include <QImage>

#include <filesystem>
#include <set>
#include <string>

#include "tests/support/TempFolder.h"
#include "tools/skin/Pictures.h"
#include "tools/skin/Png.h"

namespace brennet::skin {
namespace {

const std::filesystem::path kFolder = std::filesystem::path(BRENNET_SKIN_FOLDER) / "image";

TEST(Pictures, AreWhatTheirSourcesDraw) {
  for (const Picture& picture : kPictures) {
    EXPECT_TRUE(encodePng(picture.draw()) == test::readBytes(kFolder / picture.file))
        << picture.file << " differs; brennet-draw-skin ui/skin/image draws all of them anew";
  }
}

TEST(Pictures, AreAllThereAre) {
  std::set<std::string> expected;
  for (const Picture& picture : kPictures) expected.emplace(picture.file);
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    found.insert(entry.path().filename().string());
  }
  EXPECT_EQ(found, expected);
}

// Another library's decoder agrees with our encoder about each pixel.
TEST(Pictures, ReadBackAsTheyWereDrawn) {
  for (const Picture& picture : kPictures) {
    const Canvas canvas = picture.draw();
    const QImage image = QImage::fromData(QByteArray::fromStdString(encodePng(canvas)), "PNG");
    ASSERT_EQ(image.size(), QSize(canvas.width(), canvas.height())) << picture.file;
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    const auto bytes = canvas.bytes();
    EXPECT_EQ(
        QByteArray(reinterpret_cast<const char*>(pixels.constBits()),
                   static_cast<int>(pixels.sizeInBytes())),
        QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size())))
        << picture.file;
  }
}

}  // namespace
}  // namespace brennet::skin
