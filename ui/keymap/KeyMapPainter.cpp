#include "ui/keymap/KeyMapPainter.h"

#include <QApplication>
#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "platform/Files.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

constexpr double kLegendLines = 2;
constexpr double kLegendLine = 0.75;  // in units of a letter's key, like all that follow
constexpr double kGap = 0.06;         // around each key
constexpr double kRound = 0.12;
constexpr double kLabelSize = 0.27;
constexpr double kTagSize = 0.33;
constexpr double kPadding = 0.06;
constexpr int kSmallestLetters = 7;  // pixels

QFont lettersOf(double size, bool isBold) {
  QFont font = QApplication::font();
  font.setPixelSize(std::max(kSmallestLetters, static_cast<int>(size)));
  font.setBold(isBold);
  return font;
}

// The first use of a key in the layer, and how many there are.
struct UsesOfKey {
  const MapUse* first = nullptr;
  int count = 0;
};
UsesOfKey usesOf(const MapLook& look, const MapKey& key) {
  UsesOfKey uses;
  for (const MapUse& use : look.map) {
    if (use.press.code != key.code || layerOf(use.press) != look.layer) continue;
    if (uses.count++ == 0) uses.first = &use;
  }
  return uses;
}

// As large as there is room for, but not larger than the painter's font. What does not fit even so
// is cut.
void drawFitted(QPainter& painter, const QRectF& box, int flags, const QString& text) {
  QFont font = painter.font();
  while (font.pixelSize() > kSmallestLetters &&
         QFontMetricsF(font).horizontalAdvance(text) > box.width()) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  painter.setFont(font);
  painter.drawText(box, flags, QFontMetricsF(font).elidedText(text, Qt::ElideRight, box.width()));
}

void drawKey(QPainter& painter, const MapGrid& grid, const MapLook& look, const MapKey& key) {
  const double unit = grid.unit;
  const UsesOfKey uses = usesOf(look, key);
  const bool isLit = look.lit && look.lit->code == key.code;
  const QColor fill = uses.first == nullptr ? freeKeyColor() : kindColor(uses.first->kind);
  painter.setBrush(fill);
  painter.setPen(isLit ? QPen(Qt::white, std::max(2.0, unit * kGap * 2))
                       : QPen(QColor(0x52, 0x6e, 0x7a), 1));
  const double gap = unit * kGap;
  const QRectF cap = grid.placeOf(key).adjusted(gap, gap, -gap, -gap);
  painter.drawRoundedRect(cap, unit * kRound, unit * kRound);

  const double padding = unit * kPadding;
  const QRectF inner = cap.adjusted(padding, padding / 2, -padding, -padding / 2);
  painter.setPen(letterColor(fill));
  painter.setFont(lettersOf(unit * kLabelSize, false));
  drawFitted(painter, inner, Qt::AlignLeft | Qt::AlignTop, mapLabel(key));
  if (uses.first == nullptr) return;
  painter.setFont(lettersOf(unit * kTagSize, true));
  const QString more = uses.count > 1 ? QStringLiteral("+") : QString();
  drawFitted(painter, inner, Qt::AlignHCenter | Qt::AlignBottom, uses.first->tag + more);
}

constexpr KeyKind kDota7Kinds[] = {KeyKind::HeroSkill, KeyKind::Item, KeyKind::Option,
                                   KeyKind::Chat};

bool isInLegend(KeyKind kind, bool isDota7) {
  return !isDota7 ||
         std::find(std::begin(kDota7Kinds), std::end(kDota7Kinds), kind) != std::end(kDota7Kinds);
}

// Four kinds in a line.
void drawLegend(QPainter& painter, const QRectF& area, double unit, bool isDota7) {
  constexpr int kColumns = 4;
  const double width = area.width() / kColumns;
  const double line = unit * kLegendLine;
  painter.setFont(lettersOf(unit * kTagSize, false));
  int number = 0;
  for (std::size_t i = 0; i < kKeyKinds; ++i) {
    const auto kind = static_cast<KeyKind>(i);
    if (!isInLegend(kind, isDota7)) continue;
    const int row = number / kColumns;
    const QPointF corner(area.x() + number % kColumns * width, area.y() + row * line);
    const QRectF swatch(corner.x() + unit * kGap, corner.y() + line * 0.2, line * 0.6, line * 0.6);
    painter.setPen(QPen(QColor(0x52, 0x6e, 0x7a), 1));
    painter.setBrush(kindColor(kind));
    painter.drawRoundedRect(swatch, unit * kRound / 2, unit * kRound / 2);
    painter.setPen(letterColor(mapBackground()));
    const double begin = swatch.right() + unit * 0.2;
    drawFitted(painter, QRectF(begin, corner.y(), corner.x() + width - begin, line),
               Qt::AlignLeft | Qt::AlignVCenter, kindText(kind, isDota7));
    ++number;
  }
}

bool hasUses(const KeyMap& map, std::uint8_t layer) {
  return std::any_of(map.begin(), map.end(),
                     [&](const MapUse& use) { return layerOf(use.press) == layer; });
}

// The relative luminance of WCAG 2.
double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

}  // namespace

// The palette of Okabe and Ito, which is made for all kinds of colour vision.
QColor kindColor(KeyKind kind) {
  constexpr QRgb kColors[kKeyKinds] = {
      0xFFE69F00, 0xFF56B4E9, 0xFF009E73, 0xFFF0E442, 0xFFCC79A7, 0xFF0072B2, 0xFFD55E00,
  };
  return QColor(kColors[static_cast<std::size_t>(kind)]);
}

QColor freeKeyColor() {
  return {0x2d, 0x38, 0x51};
}

QColor mapBackground() {
  return {0x1e, 0x24, 0x2f};
}

QColor letterColor(const QColor& fill) {
  constexpr double kEven = 0.179;  // black and white have the same contrast to this one
  return luminance(fill) > kEven ? QColor(0x00, 0x00, 0x00) : QColor(0xff, 0xff, 0xff);
}

QString layerText(std::uint8_t layer) {
  switch (layer) {
    case KeyWord::kCtrl:
      return QStringLiteral("Ctrl");
    case KeyWord::kAlt:
      return QStringLiteral("Alt");
    case KeyWord::kCtrl | KeyWord::kAlt:
      return QStringLiteral("Ctrl + Alt");
    default:
      break;
  }
  const char* const plain = QT_TRANSLATE_NOOP("KeyMapWindow", "无修饰键");
  return QCoreApplication::translate("KeyMapWindow", plain);
}

QRectF MapGrid::placeOf(const MapKey& key) const {
  const double height = unit * kKeyHeight;
  return {corner.x() + key.x * unit, corner.y() + key.y * height, key.width * unit,
          key.height * height};
}

const MapKey* MapGrid::keyAt(QPointF place) const {
  const QPointF inside = place - corner;
  return mapKeyAt({inside.x() / unit, inside.y() / (unit * kKeyHeight)});
}

MapGrid gridIn(const QRectF& area) {
  const QSizeF one = mapSize(1);
  return {area.topLeft(), std::min(area.width() / one.width(), area.height() / one.height())};
}

QSizeF mapSize(double unit) {
  return QSizeF(kMapColumns, kMapRows * MapGrid::kKeyHeight + kLegendLines * kLegendLine) * unit;
}

void paintMap(QPainter& painter, const QRectF& area, const MapLook& look) {
  painter.setRenderHint(QPainter::Antialiasing);
  const MapGrid grid = gridIn(area);
  for (const MapKey& key : mapKeys()) drawKey(painter, grid, look, key);
  const double keys = kMapRows * MapGrid::kKeyHeight * grid.unit;
  const QRectF legend(area.x(), area.y() + keys, kMapColumns * grid.unit,
                      mapSize(grid.unit).height() - keys);
  drawLegend(painter, legend, grid.unit, look.isDota7);
}

QImage mapPicture(const KeyMap& map, bool isDota7) {
  constexpr double kUnit = 56;
  constexpr double kMargin = kUnit / 2;
  constexpr double kHeading = kUnit;
  const double one = kHeading + mapSize(kUnit).height();
  std::vector<std::uint8_t> layers;
  for (const std::uint8_t layer : kMapLayers) {
    if (layer == 0 || hasUses(map, layer)) layers.push_back(layer);
  }
  QImage image(static_cast<int>(kMapColumns * kUnit + 2 * kMargin),
               static_cast<int>(one * static_cast<double>(layers.size()) + 2 * kMargin),
               QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(mapBackground());
  QPainter painter(&image);
  double top = kMargin;
  for (const std::uint8_t layer : layers) {
    painter.setPen(letterColor(mapBackground()));
    painter.setFont(lettersOf(kUnit * 0.45, true));
    painter.drawText(QRectF(kMargin, top, kMapColumns * kUnit, kHeading),
                     Qt::AlignLeft | Qt::AlignVCenter, layerText(layer));
    paintMap(painter, {kMargin, top + kHeading, kMapColumns * kUnit, one - kHeading},
             {.map = map, .isDota7 = isDota7, .layer = layer});
    top += one;
  }
  return image;
}

std::error_code savePicture(const QImage& picture, const QString& fileName) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!picture.save(&buffer, "PNG")) return std::make_error_code(std::errc::not_enough_memory);
  return platform::replaceFile(platform::pathFromUtf16(viewOf(fileName)),
                               {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace brennet
