#pragma once

#include <functional>
#include <vector>

namespace brennet::skin {

// In pixels; the centre of the first pixel is at (0.5, 0.5).
struct Point {
  double x = 0;
  double y = 0;
};

// How far a point is outside of a shape, in pixels; negative inside.
using Shape = std::function<double(Point)>;

[[nodiscard]] Shape box(Point topLeft, Point bottomRight, double radius = 0);
[[nodiscard]] Shape circle(Point centre, double radius);
// A line with round ends.
[[nodiscard]] Shape line(Point from, Point to, double width);
[[nodiscard]] Shape polygon(std::vector<Point> corners);
// What is on the right of a line through `on` that runs along `along`.
[[nodiscard]] Shape rightOf(Point on, Point along);

[[nodiscard]] Shape both(Shape one, Shape other);
[[nodiscard]] Shape either(Shape one, Shape other);
[[nodiscard]] Shape without(Shape one, Shape other);
// The border of a shape, all of it inside.
[[nodiscard]] Shape border(const Shape& shape, double width);
// Larger by `distance` on all sides, with round corners; smaller where that is negative.
[[nodiscard]] Shape grown(Shape shape, double distance);
[[nodiscard]] Shape moved(Shape shape, Point by);

}  // namespace brennet::skin
