#include "tests/ui/screens/TestScreens.h"

#include <private/qhighdpiscaling_p.h>
#include <qpa/qplatformscreen.h>
#include <qpa/qplatformwindow.h>
#include <qpa/qwindowsysteminterface.h>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace brennet::test {
namespace {

constexpr int kTaskBar = 48;  // units

class TestScreen : public QPlatformScreen {
 public:
  explicit TestScreen(const ScreenShape& shape)
      : geometry_(shape.corner, shape.pixels),
        available_(shape.corner, shape.available() * shape.percent / 100) {}

  [[nodiscard]] QRect geometry() const override { return geometry_; }
  [[nodiscard]] QRect availableGeometry() const override { return available_; }
  [[nodiscard]] int depth() const override { return 32; }
  [[nodiscard]] QImage::Format format() const override { return QImage::Format_RGB32; }
  // One desktop, as on Windows: windows go from one screen to the other.
  [[nodiscard]] QList<QPlatformScreen*> virtualSiblings() const override {
    QList<QPlatformScreen*> all;
    for (const QScreen* const screen : QGuiApplication::screens()) {
      if (auto* const mine = dynamic_cast<TestScreen*>(screen->handle())) all += mine;
    }
    return all.contains(const_cast<TestScreen*>(this)) ? all : all << const_cast<TestScreen*>(this);
  }

  void setAvailable(const QRect& available) { available_ = available; }

 private:
  QRect geometry_;
  QRect available_;
};

}  // namespace

QSize ScreenShape::available() const {
  const QSize units = pixels * 100 / percent;
  return {units.width(), units.height() - kTaskBar};
}

TestScreens::TestScreens(const QVector<ScreenShape>& shapes) {
  for (const ScreenShape& shape : shapes) plug(shape);
}

void TestScreens::plug(const ScreenShape& shape) {
  auto* const screen = new TestScreen(shape);
  QWindowSystemInterface::handleScreenAdded(screen, screens_.isEmpty());
  screens_ += screen->screen();
  if (shape.percent != 100) {
    QHighDpiScaling::setScreenFactor(screen->screen(), shape.percent / 100.0);
  }
}

void TestScreens::drag(QWidget& window, int number, QPoint corner) const {
  window.windowHandle()->setPosition(corner);
  QCoreApplication::processEvents();
  QWindowSystemInterface::handleWindowScreenChanged(window.windowHandle(), screens_[number]);
  QCoreApplication::processEvents();
}

TestScreens::~TestScreens() {
  while (!screens_.isEmpty()) unplug(screens_.size() - 1);
}

QScreen& TestScreens::at(int number) const {
  return *screens_[number];
}

QRect TestScreens::pixelsOf(const QWidget& window) {
  return window.windowHandle()->handle()->geometry();
}

QRect TestScreens::availablePixels(int number) const {
  return screens_[number]->handle()->availableGeometry();
}

void TestScreens::unplug(int number) {
  QWindowSystemInterface::handleScreenRemoved(screens_.takeAt(number)->handle());
}

void TestScreens::setAvailable(int number, const QRect& units) {
  QScreen& screen = *screens_[number];
  auto& platform = *static_cast<TestScreen*>(screen.handle());
  const qreal scale = QHighDpiScaling::factor(&screen);
  const QRect geometry = platform.geometry();
  const QRect available(geometry.topLeft() + units.topLeft() * scale, units.size() * scale);
  platform.setAvailable(available);
  QWindowSystemInterface::handleScreenGeometryChange(&screen, geometry, available);
}

}  // namespace brennet::test
