#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

#include <cstdint>
#include <optional>
#include <system_error>

#include "ui/keymap/KeyMap.h"

class QPainter;

namespace brennet {

// The colours of the map. Those of the kinds differ in lightness too, so that they can be told
// apart by people who see few colours; besides, each use has its letters.
[[nodiscard]] QColor kindColor(KeyKind kind);
[[nodiscard]] QColor freeKeyColor();
[[nodiscard]] QColor mapBackground();
// The colour of letters on `fill`, at a contrast of 4.5 or more for each of the colours above.
[[nodiscard]] QColor letterColor(const QColor& fill);

// What is drawn: the uses whose modifiers are those of the layer.
struct MapLook {
  const KeyMap& map;
  bool isDota7 = false;
  std::uint8_t layer = 0;  // Ctrl and Alt of KeyWord
  std::optional<MapPress> lit{};
};

// Where the keys are in an area: a letter's key is `unit` wide, and somewhat higher, for two lines.
struct MapGrid {
  static constexpr double kKeyHeight = 1.2;  // in units

  QPointF corner;
  double unit = 0;

  [[nodiscard]] QRectF placeOf(const MapKey& key) const;
  [[nodiscard]] const MapKey* keyAt(QPointF place) const;
};

// As large as it can be in `area`, with the legend below.
[[nodiscard]] MapGrid gridIn(const QRectF& area);

// The size of keyboard and legend for keys of that width.
[[nodiscard]] QSizeF mapSize(double unit);

// Draws the keyboard and the legend into `area`.
void paintMap(QPainter& painter, const QRectF& area, const MapLook& look);

// A picture to print and share: each layer that has uses (the plain one in any case) with its name.
// Null if there is no memory for it.
[[nodiscard]] QImage mapPicture(const KeyMap& map, bool isDota7);

// Writes a picture as a PNG file, which it replaces as a whole. Returns the system's error, or an
// empty one; after an error an old file is still there.
[[nodiscard]] std::error_code savePicture(const QImage& picture, const QString& fileName);

// What a layer is called: "Ctrl + Alt".
[[nodiscard]] QString layerText(std::uint8_t layer);

// The layers in their order.
inline constexpr std::uint8_t kMapLayers[] = {0, KeyWord::kCtrl, KeyWord::kAlt,
                                              KeyWord::kCtrl | KeyWord::kAlt};

}  // namespace brennet
