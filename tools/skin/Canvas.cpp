#include "tools/skin/Canvas.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace brennet::skin {
namespace {

Color between(const Color& from, const Color& to, double part) {
  const double clamped = std::clamp(part, 0.0, 1.0);
  Color result{};
  for (std::size_t i = 0; i < result.size(); ++i) {
    result[i] = from[i] + (to[i] - from[i]) * clamped;
  }
  return result;
}

Color over(const Color& below, const Color& above, double opacity) {
  const double total = opacity + below[3] * (1 - opacity);
  if (total <= 0) return {};
  Color result{0, 0, 0, total};
  for (std::size_t i = 0; i < 3; ++i) {
    result[i] = (above[i] * opacity + below[i] * below[3] * (1 - opacity)) / total;
  }
  return result;
}

}  // namespace

Color rgb(std::uint32_t value, double opacity) {
  return {(value >> 16 & 0xFF) / 255.0, (value >> 8 & 0xFF) / 255.0, (value & 0xFF) / 255.0,
          opacity};
}

Paint solid(Color color) {
  return [=](Point) { return color; };
}

Paint downwards(double top, Color atTop, double bottom, Color atBottom) {
  return [=](Point p) { return between(atTop, atBottom, (p.y - top) / (bottom - top)); };
}

Paint outwards(Point centre, double inner, Color atInner, double outer, Color atOuter) {
  const Shape distance = circle(centre, inner);
  return [=](Point p) { return between(atInner, atOuter, distance(p) / (outer - inner)); };
}

Canvas::Canvas(int width, int height)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), Color{}) {}

Color& Canvas::at(int x, int y) {
  return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                 static_cast<std::size_t>(x)];
}

void Canvas::fill(const Shape& shape, const Paint& paint) {
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const Point centre{x + 0.5, y + 0.5};
      // A pixel that the edge runs through is covered in part.
      const double coverage = std::clamp(0.5 - shape(centre), 0.0, 1.0);
      if (coverage <= 0) continue;
      const Color color = paint(centre);
      at(x, y) = over(at(x, y), color, coverage * color[3]);
    }
  }
}

void Canvas::place(const Canvas& other, int x, int y) {
  for (int row = 0; row < other.height_; ++row) {
    for (int column = 0; column < other.width_; ++column) {
      at(x + column, y + row) =
          other.pixels_[static_cast<std::size_t>(row) * static_cast<std::size_t>(other.width_) +
                        static_cast<std::size_t>(column)];
    }
  }
}

std::vector<std::uint8_t> Canvas::bytes() const {
  std::vector<std::uint8_t> result;
  result.reserve(pixels_.size() * 4);
  for (const Color& pixel : pixels_) {
    for (const double part : pixel) {
      result.push_back(static_cast<std::uint8_t>(std::lround(std::clamp(part, 0.0, 1.0) * 255)));
    }
  }
  return result;
}

Canvas stacked(const std::vector<Canvas>& canvases) {
  int height = 0;
  for (const Canvas& canvas : canvases) height += canvas.height();
  Canvas result(canvases.front().width(), height);
  int y = 0;
  for (const Canvas& canvas : canvases) {
    result.place(canvas, 0, y);
    y += canvas.height();
  }
  return result;
}

}  // namespace brennet::skin
