#pragma once

#include <QMargins>
#include <QPoint>
#include <QRect>

namespace brennet {

// What a point of a window means to the mouse. The values are those of Windows.
enum class Hit {
  NotHandled = -2,
  Client = 1,
  Caption = 2,  // drags the window
  Left = 10,
  Right = 11,
  Top = 12,
  TopLeft = 13,
  TopRight = 14,
  Bottom = 15,
  BottomLeft = 16,
  BottomRight = 17,
};

// What a window shows at a point.
enum class Under {
  Nothing,
  Label,  // plain text
  Link,   // underlined text
  GroupBox,
  Frame,  // the title strip, or the widget that holds the form's parts
  PushButton,
  Control,  // anything else
};

// Where a frameless window can be dragged.
enum class DragArea {
  EmptyPlaces,  // wherever no control or link is
  TopStrip,     // in the top kStripHeight pixels, where no push button is
};

constexpr int kStripHeight = 30;

struct WindowShape {
  QRect frame;
  QMargins margins;  // the bands along the edges, which size the window
  DragArea dragArea = DragArea::EmptyPlaces;
};

// `point` is in the coordinates of the frame; NotHandled outside of it.
[[nodiscard]] Hit hitTest(const WindowShape& window, QPoint point, Under under);

}  // namespace brennet
