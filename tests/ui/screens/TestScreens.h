#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

class QScreen;
class QWidget;

namespace brennet::test {

// A screen, as the system's settings describe it.
struct ScreenShape {
  QSize pixels;
  int percent = 100;       // how many pixels a hundred units take
  QPoint corner = {0, 0};  // in the pixels of all screens together

  // The room for windows, in units: all but a task bar of 48 at the bottom.
  [[nodiscard]] QSize available() const;
};

// Replaces the one screen of the offscreen platform as long as it lives; the first one is the
// primary screen. Qt scales by `percent`, as in a host that lets it scale.
//
// That platform does not tell Qt which screen a window has moved to. So Qt goes on counting in the
// units of the previous one; `pixelsOf` says where a window really is.
class TestScreens {
 public:
  explicit TestScreens(const QVector<ScreenShape>& shapes);
  ~TestScreens();
  TestScreens(const TestScreens&) = delete;
  TestScreens& operator=(const TestScreens&) = delete;

  [[nodiscard]] QScreen& at(int number) const;
  // The place of a window in the pixels of all screens together.
  [[nodiscard]] static QRect pixelsOf(const QWidget& window);
  // The part of that screen that is free for windows, in the same pixels.
  [[nodiscard]] QRect availablePixels(int number) const;
  // Somebody plugs in another screen.
  void plug(const ScreenShape& shape);
  // The system moves the window there, as when the player drags it, and tells Qt the new screen.
  void drag(QWidget& window, int number, QPoint corner) const;
  // Somebody unplugs that screen: its windows go where Qt puts them.
  void unplug(int number);
  // Another task bar or resolution leaves this part of the screen, in units from its corner.
  void setAvailable(int number, const QRect& units);

 private:
  QVector<QScreen*> screens_;
};

}  // namespace brennet::test
