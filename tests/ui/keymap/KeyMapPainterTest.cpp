#include "ui/keymap/KeyMapPainter.h"

#include <gtest/gtest.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

#include "tests/support/TempFolder.h"
#include "tests/ui/PixelContrast.h"
#include "ui/keymap/SchemeKeyMap.h"

namespace brennet {
namespace {

constexpr double kUnit = 40;

QImage draw(const MapLook& look) {
  QImage image(mapSize(kUnit).toSize(), QImage::Format_RGB32);
  image.fill(mapBackground());
  QPainter painter(&image);
  paintMap(painter, image.rect(), look);
  return image;
}

// The colour of a key where nothing is printed on it: between its two lines, near the left edge.
QColor colorOf(const QImage& image, MapCode code) {
  for (const MapKey& key : mapKeys()) {
    if (key.code != code) continue;
    const QRectF place = gridIn(image.rect()).placeOf(key);
    return image.pixelColor((place.topLeft() + QPointF(4, place.height() * 0.52)).toPoint());
  }
  return {};
}

HotkeyScheme schemeOfAllKinds() {
  HotkeyScheme scheme;
  scheme.HeroSkillKey[0] = KeyWord('Q', 0);
  scheme.ItemKey[0] = KeyWord('W', KeyWord::kCtrl);
  scheme.HotKey[0] = KeyRemap(KeyWord('E', 0), KeyWord('R', 0));
  scheme.ShowFBlood = KeyWord('T', KeyWord::kCtrl | KeyWord::kAlt);
  scheme.SecretaryKey[0] = KeyWord('Y', KeyWord::kAlt);
  scheme.MouseKey[1] = KeyWord('Q', 0);
  return scheme;
}

TEST(KeyMapPainter, HasReadableLettersOnEachColor) {
  constexpr double kReadable = 4.5;
  for (std::size_t kind = 0; kind < kKeyKinds; ++kind) {
    const QColor color = kindColor(static_cast<KeyKind>(kind));
    EXPECT_GE(test::contrast(letterColor(color).rgb(), color.rgb()), kReadable) << kind;
  }
  EXPECT_GE(test::contrast(letterColor(freeKeyColor()).rgb(), freeKeyColor().rgb()), kReadable);
  EXPECT_GE(test::contrast(letterColor(mapBackground()).rgb(), mapBackground().rgb()), kReadable);
}

// Every key of every layer has the colour of what it does there, and the free ones have theirs.
TEST(KeyMapPainter, ColorsEachKeyByWhatItDoes) {
  const KeyMap map = keyMapOf(schemeOfAllKinds());
  for (const std::uint8_t layer : kMapLayers) {
    const QImage image = draw({.map = map, .isDota7 = false, .layer = layer});
    for (const MapKey& key : mapKeys()) {
      QColor expected = freeKeyColor();
      for (const MapUse& use : map) {
        if (use.press.code == key.code && layerOf(use.press) == layer) {
          expected = kindColor(use.kind);
          break;
        }
      }
      EXPECT_EQ(colorOf(image, key.code).name(), expected.name())
          << qPrintable(mapLabel(key)) << " with " << static_cast<int>(layer);
    }
  }
}

TEST(KeyMapPainter, PrintsTheLettersOfAUse) {
  const KeyMap map = keyMapOf(schemeOfAllKinds());
  const MapLook look{.map = map, .isDota7 = false, .layer = 0};
  const QImage with = draw(look);
  KeyMap silent = map;
  for (MapUse& use : silent) use.tag.clear();
  const QImage without = draw({.map = silent, .isDota7 = false, .layer = 0});
  EXPECT_NE(with, without);
}

TEST(KeyMapPainter, OutlinesALitKey) {
  const KeyMap map = keyMapOf(HotkeyScheme());
  const QImage dark = draw({.map = map, .isDota7 = false, .layer = 0});
  const QImage lit = draw({.map = map, .isDota7 = false, .layer = 0, .lit = MapPress{'G', 0}});
  QRect changed;
  for (int y = 0; y < lit.height(); ++y) {
    for (int x = 0; x < lit.width(); ++x) {
      if (lit.pixel(x, y) != dark.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    }
  }
  const auto key =
      std::ranges::find_if(mapKeys(), [](const MapKey& each) { return each.code == 'G'; });
  const QRect place = gridIn(lit.rect()).placeOf(*key).toAlignedRect();
  EXPECT_TRUE(place.contains(changed)) << "only that key";
  EXPECT_GT(changed.width(), place.width() * 3 / 4);
}

TEST(KeyMapPainter, KeepsItsShapeInAnyArea) {
  for (const QSizeF area : {QSizeF(1000, 200), QSizeF(300, 900), QSizeF(700, 300)}) {
    const MapGrid grid = gridIn({QPointF(5, 7), area});
    const QSizeF size = mapSize(grid.unit);
    EXPECT_LE(size.width(), area.width() + 1e-9);
    EXPECT_LE(size.height(), area.height() + 1e-9);
    EXPECT_TRUE(std::abs(size.width() - area.width()) < 1e-6 ||
                std::abs(size.height() - area.height()) < 1e-6);
    for (const MapKey& key : mapKeys()) EXPECT_EQ(grid.keyAt(grid.placeOf(key).center()), &key);
  }
}

// The plain layer is in any case; those without a use are left out.
TEST(KeyMapPainter, MakesAPictureOfTheLayersInUse) {
  const QImage none = mapPicture({}, false);
  KeyMap map;
  map.push_back({.press = {'Q', KeyWord::kAlt}, .tag = QStringLiteral("S1")});
  const QImage one = mapPicture(map, false);
  map.push_back({.press = {'Q', KeyWord::kCtrl}, .tag = QStringLiteral("S2")});
  const QImage two = mapPicture(map, true);
  EXPECT_EQ(none.width(), two.width());
  EXPECT_GT(one.height(), none.height());
  EXPECT_EQ(two.height() - one.height(), one.height() - none.height());
}

TEST(KeyMapPainter, LeavesAFileAloneWhereThereIsNoPicture) {
  const test::TempFolder folder;
  test::writeBytes(folder / "map.png", "old");
  const QString file = QString::fromStdU16String((folder / "map.png").u16string());
  EXPECT_TRUE(savePicture(QImage(), file));
  EXPECT_EQ(test::readBytes(folder / "map.png"), "old");
  EXPECT_FALSE(savePicture(mapPicture({}, false), file));
  EXPECT_NE(test::readBytes(folder / "map.png"), "old");
}

TEST(KeyMapPainter, NamesEachLayer) {
  EXPECT_EQ(layerText(KeyWord::kCtrl), QStringLiteral("Ctrl"));
  EXPECT_EQ(layerText(KeyWord::kAlt), QStringLiteral("Alt"));
  EXPECT_EQ(layerText(KeyWord::kCtrl | KeyWord::kAlt), QStringLiteral("Ctrl + Alt"));
  EXPECT_FALSE(layerText(0).isEmpty());
}

}  // namespace
}  // namespace brennet
