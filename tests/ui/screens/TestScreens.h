#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

class QScreen;

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
class TestScreens {
 public:
  explicit TestScreens(const QVector<ScreenShape>& shapes);
  ~TestScreens();
  TestScreens(const TestScreens&) = delete;
  TestScreens& operator=(const TestScreens&) = delete;

  [[nodiscard]] QScreen& at(int number) const;
  // Somebody pulls the plug: what was on it goes where Qt puts it.
  void unplug(int number);
  // Another task bar or another resolution leaves this part of the screen, in units, from its
  // corner.
  void setAvailable(int number, const QRect& units);

 private:
  QVector<QScreen*> screens_;
};

}  // namespace brennet::test
