// The large buttons of the pages: a face, and a sign on it.

#include "tools/skin/Palette.h"
#include "tools/skin/Pictures.h"

namespace brennet::skin {
namespace {

constexpr int kSize = 55;

// What the signs of a state are drawn with.
struct Ink {
  Color sign;
  Color shade;
  Color deep;
};

struct State {
  Color top;
  Color bottom;
  Color edge;
  Ink ink;
};

const State kNormal = {
    rgb(0x4a5f86), rgb(0x33435f), kButtonEdge, {kText, rgb(0x97abd0), rgb(0x6c82ac)}};
const State kLit = {
    rgb(0x6482b8), rgb(0x435a86), kHighlight, {kWhite, rgb(0xbdd0f5), rgb(0x8ba6da)}};

using Sign = void (*)(Canvas&, const Ink&);

Canvas button(const State& state, Sign sign) {
  Canvas canvas(kSize, kSize);
  const Shape face = box({0, 0}, {kSize, kSize}, 7);
  canvas.fill(face, downwards(0, state.top, kSize, state.bottom));
  canvas.fill(border(face, 1), state.edge);
  canvas.fill(border(grown(face, -1), 1), downwards(0, rgb(0xffffff, 0.16), 20, rgb(0xffffff, 0)));
  sign(canvas, state.ink);
  return canvas;
}

// A box seen from above one of its corners.
void drawBox(Canvas& canvas, const Ink& ink) {
  constexpr Point kMiddle{27.5, 27}, kUp{27.5, 11.5}, kDown{27.5, 43.5}, kLeftUp{13.5, 19.25},
      kRightUp{41.5, 19.25}, kLeftDown{13.5, 35.5}, kRightDown{41.5, 35.5};
  constexpr double kGap = -0.8;
  canvas.fill(grown(polygon({kUp, kRightUp, kMiddle, kLeftUp}), kGap), ink.sign);
  canvas.fill(grown(polygon({kLeftUp, kMiddle, kDown, kLeftDown}), kGap), ink.shade);
  canvas.fill(grown(polygon({kMiddle, kRightUp, kRightDown, kDown}), kGap), ink.deep);
}

Shape bubble(Point topLeft, Point bottomRight, double radius) {
  const Point foot{topLeft.x + radius + 2, bottomRight.y - 1};
  return either(box(topLeft, bottomRight, radius),
                polygon({foot, {foot.x + 8, foot.y}, {foot.x - 1, foot.y + 7}}));
}

void drawChat(Canvas& canvas, const Ink& ink) {
  canvas.fill(bubble({11, 14}, {44, 36}, 7), ink.sign);
  for (const double x : {20.0, 27.5, 35.0}) canvas.fill(circle({x, 25}, 2.3), kButton);
}

void drawDota(Canvas& canvas, const Ink& ink) {
  const Shape hexagon =
      polygon({{27.5, 9}, {43.5, 18.25}, {43.5, 36.75}, {27.5, 46}, {11.5, 36.75}, {11.5, 18.25}});
  canvas.fill(border(grown(hexagon, 1), 2), ink.shade);
  canvas.fill(
      polygon(
          {{20, 18}, {35.5, 18}, {35.5, 21.5}, {28.5, 38}, {23.8, 38}, {30.3, 22.2}, {20, 22.2}}),
      ink.sign);
}

// A key of a keyboard with a small bubble on it.
void drawChatKey(Canvas& canvas, const Ink& ink) {
  const Shape key = box({11, 12}, {44, 45}, 6);
  const Shape top = box({15, 14}, {40, 38}, 4);
  canvas.fill(key, ink.deep);
  canvas.fill(border(key, 1.5), ink.shade);
  canvas.fill(top, ink.sign);
  canvas.fill(bubble({19, 18.5}, {36, 30}, 4), kButton);
  for (const double x : {23.5, 27.5, 31.5}) canvas.fill(circle({x, 24.25}, 1.2), ink.sign);
}

Canvas bothStates(Sign sign) {
  return stacked({button(kNormal, sign), button(kLit, sign)});
}

}  // namespace

Canvas panelButton() {
  return bothStates(drawBox);
}
Canvas chatButton() {
  return bothStates(drawChat);
}
Canvas dotaButton() {
  return bothStates(drawDota);
}
Canvas chatKeyButton() {
  return button(kNormal, drawChatKey);
}
Canvas chatKeyButtonHovered() {
  return button(kLit, drawChatKey);
}

}  // namespace brennet::skin
