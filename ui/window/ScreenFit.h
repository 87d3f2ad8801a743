#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

class CPageScroller;
class QShowEvent;
class QWidget;
class QWindow;

namespace brennet {

// Where a window of that size is moved to so that it is inside the area: as little as possible. Of
// one that is larger than the area the top left corner, where its title is, stays inside.
[[nodiscard]] QPoint cornerInside(const QRect& area, QSize size, QPoint corner);

// Keeps a window without a frame inside the part of its screen that is free for windows: without
// task bars and docks.
class ScreenFit : public QObject {
 public:
  // `window` owns this. What is too large for the screen scrolls in its CPageScroller; without one
  // the window keeps its size.
  explicit ScreenFit(QWidget& window);

  // To be called when the window gets the event `shown` and has its final look. A window that
  // nobody has moved comes up in the middle of the one that it belongs to: its parent's, its
  // transient parent or the one that the player has before him. All come up on the screen of that
  // window, and stay inside when the screen changes or is taken away. What was minimized comes back
  // where it was.
  void comeUp(const QShowEvent& shown);

  // To be called when the window has got another content while it is shown.
  void refit() { fitAgain(true); }

 private:
  void watch();
  void limitTo(QSize available) const;
  void fitAgain(bool moves);
  void fitNow(bool moves) const;
  void moveTo(QPoint corner) const;

  QWidget& window_;
  CPageScroller* content_;
  QPointer<const QWindow> handle_;  // whose screen is watched
  bool isWatching_ = false;         // the screens
};

}  // namespace brennet
