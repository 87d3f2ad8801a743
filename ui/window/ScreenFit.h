#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

class CPageScroller;
class QBoxLayout;
class QShowEvent;
class QWidget;
class QWindow;

namespace brennet {

// Where to move a window of that size to get it inside the area, as little as possible. If it is
// larger than the area, its top left corner, where its title is, stays inside.
[[nodiscard]] QPoint cornerInside(const QRect& area, QSize size, QPoint corner);

// Keeps a frameless window inside the part of its screen that is free for windows, without task
// bars and docks.
class ScreenFit : public QObject {
 public:
  // `window` owns this. A window too large for the screen scrolls in its CPageScroller; without one
  // it gets smaller, as far as its layout allows, or keeps its size if that is fixed.
  explicit ScreenFit(QWidget& window);

  // To be called when the window gets the event `shown` and has its final look. A window that
  // nobody has moved appears in the middle of its owner (see HostPlace.h). All appear on the screen
  // of the owner, and stay inside when the screen changes or is taken away. A minimized window
  // comes back where it was.
  void comeUp(const QShowEvent& shown);

  // A row of the window, whose parts stand one below the other on screens too narrow for it.
  void fold(QBoxLayout& row) { folded_ = &row; }

  // A widget of the window, which outlives it, that is hidden on screens too narrow even then.
  void spare(QWidget& widget) { spared_ = &widget; }

  // To be called when the content of the window has changed while it is shown.
  void refit() { fitAgain(true); }

 private:
  void watch();
  void limitTo(QSize available) const;
  void limitContent(QSize available) const;
  [[nodiscard]] bool isTooNarrow(QSize available) const;
  void fitAgain(bool moves);
  void fitNow(bool moves) const;
  void moveTo(QPoint corner) const;

  QWidget& window_;
  CPageScroller* content_;
  QWidget* spared_ = nullptr;
  QBoxLayout* folded_ = nullptr;
  QPointer<const QWindow> handle_;  // whose screen is watched
  bool isWatching_ = false;         // the screens
};

}  // namespace brennet
