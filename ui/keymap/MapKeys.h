#pragma once

#include <QRectF>
#include <QString>

#include <cstdint>
#include <span>

namespace brennet {

// What can be pressed: a virtual-key code, or one of the three below for the mouse wheel.
using MapCode = std::uint16_t;
inline constexpr MapCode kWheelUp = 0x100;
inline constexpr MapCode kWheelClick = 0x101;
inline constexpr MapCode kWheelDown = 0x102;

// A key of the drawn keyboard: an ANSI keyboard of 104 keys, and the mouse wheel beside it.
struct MapKey {
  MapCode code;  // keys on the left and on the right that Windows does not tell apart share one
  float x, y, width, height;  // in units of a letter's key, from the top left corner
  const char* label;          // what is printed on the key; null: the character of its code

  [[nodiscard]] QRectF place() const { return {x, y, width, height}; }
};

// All keys, row by row.
[[nodiscard]] std::span<const MapKey> mapKeys();

// The size of the whole keyboard, in units of a letter's key.
inline constexpr double kMapColumns = 24.25;
inline constexpr double kMapRows = 6.25;

// What is printed on a key.
[[nodiscard]] QString mapLabel(const MapKey& key);

// The key at that place; null if there is none.
[[nodiscard]] const MapKey* mapKeyAt(QPointF place);

// Where a code comes in the order of the keys; behind all of them if no key has it.
[[nodiscard]] int mapOrder(MapCode code);

}  // namespace brennet
