#include "tools/skin/Shapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

// Only what every processor computes alike is used: the four operations and the square root.

namespace brennet::skin {
namespace {

Point operator-(Point a, Point b) {
  return {a.x - b.x, a.y - b.y};
}
double dot(Point a, Point b) {
  return a.x * b.x + a.y * b.y;
}
double length(Point p) {
  return std::sqrt(dot(p, p));
}

double distanceToLine(Point p, Point from, Point to) {
  const Point along = to - from;
  const Point way = p - from;
  const double part = std::clamp(dot(way, along) / dot(along, along), 0.0, 1.0);
  return length({way.x - along.x * part, way.y - along.y * part});
}

// Whether a ray from p to the left crosses the edge; an odd number of edges means inside.
bool crosses(Point p, Point from, Point to) {
  if ((from.y > p.y) == (to.y > p.y)) return false;
  return p.x > from.x + (p.y - from.y) * (to.x - from.x) / (to.y - from.y);
}

}  // namespace

Shape box(Point topLeft, Point bottomRight, double radius) {
  const Point centre{(topLeft.x + bottomRight.x) / 2, (topLeft.y + bottomRight.y) / 2};
  const Point half{bottomRight.x - centre.x - radius, bottomRight.y - centre.y - radius};
  return [=](Point p) {
    const Point q{std::abs(p.x - centre.x) - half.x, std::abs(p.y - centre.y) - half.y};
    const double outside = length({std::max(q.x, 0.0), std::max(q.y, 0.0)});
    return outside + std::min(std::max(q.x, q.y), 0.0) - radius;
  };
}

Shape circle(Point centre, double radius) {
  return [=](Point p) { return length(p - centre) - radius; };
}

Shape line(Point from, Point to, double width) {
  return [=](Point p) { return distanceToLine(p, from, to) - width / 2; };
}

Shape polygon(std::vector<Point> corners) {
  return [corners = std::move(corners)](Point p) {
    double distance = length(p - corners.front());
    bool inside = false;
    Point from = corners.back();
    for (const Point to : corners) {
      distance = std::min(distance, distanceToLine(p, from, to));
      if (crosses(p, from, to)) inside = !inside;
      from = to;
    }
    return inside ? -distance : distance;
  };
}

Shape rightOf(Point on, Point along) {
  const double size = length(along);
  // The y axis points downwards.
  return [=](Point p) { return dot(p - on, {along.y / size, -along.x / size}); };
}

Shape both(Shape one, Shape other) {
  return [one = std::move(one), other = std::move(other)](Point p) {
    return std::max(one(p), other(p));
  };
}

Shape either(Shape one, Shape other) {
  return [one = std::move(one), other = std::move(other)](Point p) {
    return std::min(one(p), other(p));
  };
}

Shape without(Shape one, Shape other) {
  return [one = std::move(one), other = std::move(other)](Point p) {
    return std::max(one(p), -other(p));
  };
}

Shape border(const Shape& shape, double width) {
  return without(shape, grown(shape, -width));
}

Shape grown(Shape shape, double distance) {
  return [shape = std::move(shape), distance](Point p) { return shape(p) - distance; };
}

Shape moved(Shape shape, Point by) {
  return [shape = std::move(shape), by](Point p) { return shape(p - by); };
}

}  // namespace brennet::skin
