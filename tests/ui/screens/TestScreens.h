#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

class QScreen;
class QWidget;

namespace brennet::test {

// A screen as its settings describe it.
struct ScreenShape {
  QSize pixels;
  int percent = 100;       // how much larger than its pixels everything on it is
  QPoint corner = {0, 0};  // of the pixels of all screens together

  // What windows have on it, in the units that they count in: a task bar of 48 is below.
  [[nodiscard]] QSize available() const;
};

// Puts screens in the place of the one that the platform without a screen has, as long as it lives;
// the first one is the primary screen. What `percent` says is done by Qt as for a host that lets it
// scale.
//
// That platform does not tell Qt which screen a window has come to. So Qt counts on in the units of
// the first one; where a window is in truth, say its pixels.
class TestScreens {
 public:
  explicit TestScreens(const QVector<ScreenShape>& shapes);
  ~TestScreens();
  TestScreens(const TestScreens&) = delete;
  TestScreens& operator=(const TestScreens&) = delete;

  [[nodiscard]] QScreen& at(int number) const;
  // The place of a window in the pixels of all screens together.
  [[nodiscard]] static QRect pixelsOf(const QWidget& window);
  // The part of the screen that is free for windows, likewise.
  [[nodiscard]] QRect availablePixels(int number) const;
  // Somebody plugs another one in.
  void plug(const ScreenShape& shape);
  // The system moves the window there, as when the player drags it, and tells Qt the screen.
  void drag(QWidget& window, int number, QPoint corner) const;
  // Somebody pulls the plug: what was on it goes where Qt puts it.
  void unplug(int number);
  // Another task bar or another resolution leaves this part of the screen, in units, from its
  // corner.
  void setAvailable(int number, const QRect& units);

 private:
  QVector<QScreen*> screens_;
};

}  // namespace brennet::test
