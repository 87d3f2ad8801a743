// The chat wheel and the fields around it.

#include "tools/skin/Palette.h"
#include "tools/skin/Pictures.h"

namespace brennet::skin {
namespace {

constexpr int kSize = 380;
constexpr Point kCentre{190, 190};
constexpr double kHub = 54;
constexpr double kInner = 64;
constexpr double kOuter = 180;

// The eight ways from the centre, clockwise from the upper right, half a sector beside the axes.
constexpr double kCos = 0.92387953251128674;  // of 22.5 degrees
constexpr double kSin = 0.38268343236508977;
constexpr Point kSpokes[] = {{kSin, -kCos}, {kCos, -kSin}, {kCos, kSin},   {kSin, kCos},
                             {-kSin, kCos}, {-kCos, kSin}, {-kCos, -kSin}, {-kSin, -kCos}};
constexpr int kSectors = 8;

Shape ring(double inner, double outer) {
  return without(circle(kCentre, outer), circle(kCentre, inner));
}

// The part of the ring between a spoke and the one before it.
Shape sector(int number) {
  const Point from = kSpokes[(number + kSectors - 1) % kSectors];
  const Point to = kSpokes[number];
  const Shape wedge = both(rightOf(kCentre, from), rightOf(kCentre, {-to.x, -to.y}));
  return grown(both(ring(kInner, kOuter), wedge), -2);
}

void drawHub(Canvas& canvas) {
  const Shape hub = circle(kCentre, kHub);
  canvas.fill(hub, downwards(kCentre.y - kHub, rgb(0x4a5f86), kCentre.y + kHub, rgb(0x2a374f)));
  canvas.fill(border(hub, 2), kButtonEdge);
  const Shape bubble =
      either(box({166, 171}, {214, 203}, 10), polygon({{174, 202}, {187, 202}, {173, 214}}));
  canvas.fill(bubble, kText);
  for (const double x : {178.0, 190.0, 202.0}) canvas.fill(circle({x, 187}, 3.5), kButton);
}

Canvas field(Color fill, Color edge, Color mark) {
  Canvas canvas(130, 28);
  const Shape shape = box({0, 0}, {130, 28}, 4);
  canvas.fill(shape, fill);
  canvas.fill(border(shape, 1), edge);
  canvas.fill(box({4, 7}, {6, 21}, 1), mark);
  return canvas;
}

}  // namespace

Canvas wheel() {
  Canvas canvas(kSize, kSize);
  const Shape disc = circle(kCentre, kSize / 2.0);
  canvas.fill(disc, rgb(0x1a202b));
  canvas.fill(border(disc, 2), kEdge);
  for (int i = 0; i < kSectors; ++i) {
    const Color rim = i % 2 == 0 ? rgb(0x33415e) : rgb(0x2c3953);
    canvas.fill(sector(i), outwards(kCentre, kInner, rgb(0x222b3e), kOuter, rim));
    canvas.fill(border(sector(i), 1), rgb(0x526e7a, 0.55));
  }
  drawHub(canvas);
  return canvas;
}

Canvas phraseField() {
  return field(rgb(0x20304c, 0.94), kEdge, kButtonEdge);
}

Canvas phraseFieldHovered() {
  return field(rgb(0x354a72, 0.96), kWhite, kBright);
}

}  // namespace brennet::skin
