#include "ui/keymap/MapKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "keys/CaptureKeyNames.h"

namespace brennet {
namespace {

TEST(MapKeys, AreThoseOfAnAnsiKeyboardAndTheWheel) {
  const auto isWheel = [](const MapKey& key) { return key.code >= kWheelUp; };
  EXPECT_EQ(std::ranges::count_if(mapKeys(), isWheel), 3);
  EXPECT_EQ(mapKeys().size(), 104U + 3U);
}

TEST(MapKeys, LieBesideEachOtherInsideTheKeyboard) {
  const QRectF keyboard(0, 0, kMapColumns, kMapRows);
  for (const MapKey& key : mapKeys()) {
    EXPECT_TRUE(keyboard.contains(key.place())) << qPrintable(mapLabel(key));
    for (const MapKey& other : mapKeys()) {
      EXPECT_TRUE(&key == &other || !key.place().intersects(other.place()))
          << qPrintable(mapLabel(key)) << " and " << qPrintable(mapLabel(other));
    }
  }
}

TEST(MapKeys, AreFoundByTheirPlaces) {
  for (const MapKey& key : mapKeys()) {
    EXPECT_EQ(mapKeyAt(key.place().center()), &key);
    EXPECT_EQ(mapKeyAt(key.place().topLeft()), &key);
  }
  for (const QPointF outside : {QPointF(1.5, 0.5), QPointF(-0.1, 0.5), QPointF(0.5, 1.1),
                                QPointF(16.5, 3.5), QPointF(24.3, 2), QPointF(5, 6.3)}) {
    EXPECT_EQ(mapKeyAt(outside), nullptr) << outside.x() << ", " << outside.y();
  }
}

// Every key that a field names is drawn, but for those that no keyboard of this kind has.
TEST(MapKeys, AreThoseWithNames) {
  const std::set<MapCode> kNotDrawn = {
      0x0C,                                                        // keypad 5 without NumLock
      0x15, 0x17, 0x18, 0x19, 0x1C, 0x1D, 0x1E, 0x1F,              // input methods
      0x29, 0x2A, 0x2B, 0x2F, 0x6C,                                // select, print, execute, help
      0x7C, 0x7D, 0x7E, 0x7F, 0x80, 0x81, 0x82, 0x83, 0x84, 0x85,  // F13 and on
      0x5F,                                                        // sleep
      0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5,                          // no press has these codes
      0x86, 0x87, 0xAD, 0xAE, 0xAF,                                // loudness
  };
  for (int code = 0; code <= 0xFF; ++code) {
    if (keyName(code).empty()) continue;
    const auto isIt = [code](const MapKey& key) { return key.code == code; };
    EXPECT_NE(std::ranges::any_of(mapKeys(), isIt), kNotDrawn.count(static_cast<MapCode>(code)) > 0)
        << std::hex << code;
  }
}

TEST(MapKeys, AreOrderedByRows) {
  EXPECT_LT(mapOrder(0x1B), mapOrder(0x70));
  EXPECT_LT(mapOrder('1'), mapOrder('Q'));
  EXPECT_LT(mapOrder('P'), mapOrder('A'));
  EXPECT_LT(mapOrder(0x60), mapOrder(kWheelUp));
  EXPECT_EQ(mapOrder(0xFE), 107) << "no key of the keyboard";
}

}  // namespace
}  // namespace brennet
