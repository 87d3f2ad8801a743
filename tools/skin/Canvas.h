#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "tools/skin/Shapes.h"

namespace brennet::skin {

// Red, green, blue and opacity, each from 0 to 1.
using Color = std::array<double, 4>;

// A colour as style sheets write it: rgb(0x1e242f).
[[nodiscard]] Color rgb(std::uint32_t value, double opacity = 1);

// The colour at a point.
using Paint = std::function<Color(Point)>;

[[nodiscard]] Paint solid(Color color);
[[nodiscard]] Paint downwards(double top, Color atTop, double bottom, Color atBottom);
[[nodiscard]] Paint outwards(Point centre, double inner, Color atInner, double outer,
                             Color atOuter);

// A picture that starts transparent.
class Canvas {
 public:
  Canvas(int width, int height);

  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }

  // Lays the paint over what is there; edges are smooth.
  void fill(const Shape& shape, const Paint& paint);
  void fill(const Shape& shape, Color color) { fill(shape, solid(color)); }

  // Copies a smaller picture to (x, y).
  void place(const Canvas& other, int x, int y);

  // Red, green, blue, opacity of each pixel, row by row from the top.
  [[nodiscard]] std::vector<std::uint8_t> bytes() const;

 private:
  [[nodiscard]] Color& at(int x, int y);

  int width_;
  int height_;
  std::vector<Color> pixels_;
};

// Pictures of the same width, one below the other.
[[nodiscard]] Canvas stacked(const std::vector<Canvas>& canvases);

}  // namespace brennet::skin
