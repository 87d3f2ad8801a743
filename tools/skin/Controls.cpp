// Small controls: close button, tabs, switches and arrows.

#include "tools/skin/Palette.h"
#include "tools/skin/Pictures.h"

namespace brennet::skin {
namespace {

struct Face {
  Color top;
  Color bottom;
  Color edge;
};

void fillFace(Canvas& canvas, const Shape& shape, const Face& face, double height) {
  canvas.fill(shape, downwards(0, face.top, height, face.bottom));
  canvas.fill(border(shape, 1), face.edge);
}

Canvas cross(Color color) {
  Canvas canvas(10, 10);
  canvas.fill(either(line({2, 2}, {8, 8}, 1.7), line({8, 2}, {2, 8}, 1.7)), color);
  return canvas;
}

// Round above; the page below joins it.
Canvas tab(const Face& face, Color accent) {
  Canvas canvas(85, 26);
  const Shape shape = box({0, 0}, {85, 40}, 5);
  fillFace(canvas, shape, face, 26);
  canvas.fill(both(grown(shape, -1), box({0, 0}, {85, 3})), accent);
  return canvas;
}

Canvas toggle(const Face& face, Color bolt) {
  Canvas canvas(13, 13);
  fillFace(canvas, box({0, 0}, {13, 13}, 3), face, 13);
  canvas.fill(polygon({{7.7, 1.8}, {3.2, 7.3}, {6.1, 7.3}, {5.3, 11.2}, {9.8, 5.7}, {6.9, 5.7}}),
              bolt);
  return canvas;
}

// The arrows stand in what the longest text leaves free.
Canvas mode(const Face& face, Color arrows) {
  Canvas canvas(157, 28);
  const Shape shape = box({0, 0}, {157, 28}, 4);
  fillFace(canvas, shape, face, 28);
  canvas.fill(both(grown(shape, -1), box({0, 0}, {157, 2})), rgb(0xffffff, 0.12));
  canvas.fill(either(line({8.5, 10.5}, {5, 14}, 1.6), line({5, 14}, {8.5, 17.5}, 1.6)), arrows);
  canvas.fill(either(line({148.5, 10.5}, {152, 14}, 1.6), line({152, 14}, {148.5, 17.5}, 1.6)),
              arrows);
  return canvas;
}

Canvas chevron(int size, Point left, Point tip, Point right, double width, Color color) {
  Canvas canvas(size, size);
  canvas.fill(either(line(left, tip, width), line(tip, right, width)), color);
  return canvas;
}

}  // namespace

Canvas closeButton() {
  return stacked({cross(kLabel), cross(kWhite), cross(kHighlight), cross(kFaint)});
}

Canvas pageTab() {
  const Color none = rgb(0, 0);
  return stacked({
      tab({rgb(0x2c3750), rgb(0x222b3f), kSunkenEdge}, none),
      tab({rgb(0x3c4d72), rgb(0x2d3a57), kEdge}, rgb(0xffffff, 0.10)),
      tab({rgb(0x445a83), rgb(0x34466a), kButtonEdge}, kHighlight),
  });
}

Canvas castToggle() {
  return stacked({
      toggle({rgb(0x2c3750), rgb(0x33415e), kButtonEdge}, rgb(0xa9b8d0)),
      toggle({rgb(0x53699a), rgb(0x384a6e), kButtonEdge}, kGold),
  });
}

Canvas modeButton() {
  return mode({rgb(0x4b6187), rgb(0x3a4b6c), kButtonEdge}, kButtonEdge);
}

Canvas modeButtonHovered() {
  return mode({rgb(0x344568), rgb(0x2a3753), kHighlight}, kBright);
}

Canvas arrowUp() {
  return chevron(12, {2.5, 8}, {6, 4.5}, {9.5, 8}, 1.8, kLabel);
}

Canvas arrowDown() {
  return chevron(12, {2.5, 4.5}, {6, 8}, {9.5, 4.5}, 1.8, kLabel);
}

Canvas dropArrow() {
  return chevron(26, {8.5, 11}, {13, 15.5}, {17.5, 11}, 2, kText);
}

}  // namespace brennet::skin
