// The whole key map against stored pictures, to the pixel.

#include <gtest/gtest.h>

#include <QPainter>
#include <QTranslator>

#include "gameside/dota7/Dota7Values.h"
#include "model/HotkeyConfig.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/support/Golden.h"
#include "tests/support/TestData.h"
#include "tests/ui/GoldenPicture.h"
#include "ui/keymap/Dota7KeyMap.h"
#include "ui/keymap/KeyMapPainter.h"
#include "ui/keymap/SchemeKeyMap.h"

namespace brennet::test {
namespace {

class KeyMapPictureTest : public Dota7Test {
 protected:
  KeyMapPictureTest() {
    EXPECT_TRUE(
        english_.load(QStringLiteral("brennet_en.qm"), QStringLiteral(BRENNET_TRANSLATIONS)));
    QCoreApplication::installTranslator(&english_);
  }

 private:
  QTranslator english_;
  BitLetters letters_;
};

// Each kind of use, several on one key, and each layer.
HotkeyScheme fullScheme() {
  HotkeyScheme scheme;
  for (std::size_t i = 0; i < 4; ++i) {
    scheme.HeroSkillKey[i] = KeyWord(static_cast<std::uint8_t>("QWER"[i]), 0);
    scheme.ItemKey[i] = KeyWord(static_cast<std::uint8_t>('1' + i), KeyWord::kAlt);
  }
  scheme.ItemKey[4] = KeyWord('D', KeyWord::kCtrl);
  scheme.HotKey[0] = KeyRemap(KeyWord(0xC0, 0), KeyWord(0x70, 0));
  scheme.HotKey[1] = KeyRemap(KeyWord(0x20, 0), KeyWord('Q', 0));
  scheme.ShowFBlood = KeyWord('T', KeyWord::kCtrl | KeyWord::kAlt);
  scheme.SecretaryKey[0] = KeyWord('Y', KeyWord::kAlt);
  scheme.MouseKey[0] = KeyWord('Q', 0);
  scheme.MouseKey[1] = KeyWord('X', 0);
  return scheme;
}

TEST_F(KeyMapPictureTest, IsTheStoredOneForAScheme) {
  expectGoldenPicture("ui/key-map-scheme.png", mapPicture(keyMapOf(fullScheme()), false));
}

TEST_F(KeyMapPictureTest, IsTheStoredOneForDota7) {
  Dota7Settings& keys = manager.settings();
  keys.reset();
  ASSERT_TRUE(keys.storeKey(dota7UnitKeys()[0], {'Q', Dota7Key::kNoModifier}));
  ASSERT_TRUE(keys.storeKey(dota7ItemKeys()[6], {'Q', Dota7Key::kAlt}));
  ASSERT_TRUE(keys.storeKey(dota7SkillKeys(Dota7Cast::Quick)[5], {0x70, Dota7Key::kCtrl}));
  ASSERT_TRUE(keys.storeKey(dota7ChatKeys()[14], {'9', Dota7Key::kNoModifier}));
  expectGoldenPicture("ui/key-map-dota7.png", mapPicture(keyMapOf(keys), true));
}

// As small as in the window of a small screen, with a key lit.
TEST_F(KeyMapPictureTest, IsTheStoredOneWhereItIsSmall) {
  constexpr double kUnit = 22;
  QImage image(mapSize(kUnit).toSize(), QImage::Format_RGB32);
  image.fill(mapBackground());
  QPainter painter(&image);
  paintMap(painter, image.rect(),
           {.map = keyMapOf(fullScheme()), .isDota7 = false, .layer = 0, .lit = MapPress{'G', 0}});
  painter.end();
  expectGoldenPicture("ui/key-map-small.png", image);
}

}  // namespace
}  // namespace brennet::test
