#include "ui/window/HitTest.h"

namespace brennet {
namespace {

enum Band { kBefore, kInside, kAfter, kOutside };

// On which of the two margins of an axis a place is. If both claim it, the first one gets it.
Band bandOf(int place, int start, int end, int marginAtStart, int marginAtEnd) {
  if (place >= start && place < start + marginAtStart) return kBefore;
  if (place >= end - marginAtEnd && place < end) return kAfter;
  return place >= start && place < end ? kInside : kOutside;
}

Hit hitInside(const WindowShape& window, QPoint point, Under under) {
  if (window.dragArea == DragArea::TopStrip) {
    const int innerTop = window.frame.top() + window.margins.top();
    const bool isBelow = point.y() - innerTop > kStripHeight;
    return isBelow || under == Under::PushButton ? Hit::Client : Hit::Caption;
  }
  switch (under) {
    case Under::Link:
    case Under::PushButton:
    case Under::Control:
      return Hit::Client;
    default:
      return Hit::Caption;
  }
}

}  // namespace

Hit hitTest(const WindowShape& window, QPoint point, Under under) {
  const QRect& frame = window.frame;
  const QMargins& margins = window.margins;
  const Band column =
      bandOf(point.x(), frame.x(), frame.x() + frame.width(), margins.left(), margins.right());
  const Band row =
      bandOf(point.y(), frame.y(), frame.y() + frame.height(), margins.top(), margins.bottom());
  // One row for each Band of the vertical axis, one column for each of the horizontal axis.
  static constexpr Hit kBands[4][4] = {
      {Hit::TopLeft, Hit::Top, Hit::TopRight, Hit::Top},
      {Hit::Left, Hit::NotHandled, Hit::Right, Hit::NotHandled},
      {Hit::BottomLeft, Hit::Bottom, Hit::BottomRight, Hit::Bottom},
      {Hit::Left, Hit::NotHandled, Hit::Right, Hit::NotHandled},
  };
  if (column == kInside && row == kInside) return hitInside(window, point, under);
  return kBands[row][column];
}

}  // namespace brennet
