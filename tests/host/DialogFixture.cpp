#include "tests/host/DialogFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

namespace brennet::test {
namespace {

// Calls `act` once, with the first modal window that comes up after this was made.
class NextWindow {
 public:
  explicit NextWindow(std::function<void(QDialog&)> act)
      : act_(std::move(act)), before_(QApplication::activeModalWidget()) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(0);
  }
  ~NextWindow() { EXPECT_TRUE(isShown_) << "no window has come up"; }
  NextWindow(const NextWindow&) = delete;
  NextWindow& operator=(const NextWindow&) = delete;

 private:
  void look() {
    auto* const window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (window == nullptr || window == before_) return;
    isShown_ = true;
    timer_.stop();
    act_(*window);
  }

  std::function<void(QDialog&)> act_;
  const QWidget* before_;
  QTimer timer_;
  bool isShown_ = false;
};

// Ends the program if there is no such widget: the rest of the test would mean nothing.
template <class Widget>
Widget& find(QWidget& window, const char* name) {
  auto* const found = window.findChild<Widget*>(QLatin1String(name));
  if (found == nullptr) qFatal("there is no %s", name);
  return *found;
}

}  // namespace

bool DialogFixture::open(const char* button, const Act& act) {
  return openUntil([&](QDialog& dialog) {
    act(dialog);
    DialogFixture::button(dialog, button).click();
  });
}

bool DialogFixture::openUntil(const Act& act) {
  const NextWindow dialog(act);
  saved_ = true;
  return brennet_.ShowSettingsDialog(&saved_, 4711);
}

void DialogFixture::inWindowOf(QAbstractButton& opener, const char* answer, const Act& act) {
  const NextWindow opened([&](QDialog& window) {
    act(window);
    button(window, answer).click();
  });
  opener.click();
}

QAbstractButton& DialogFixture::button(QWidget& window, const char* name) {
  return find<QAbstractButton>(window, name);
}

QLineEdit& DialogFixture::field(QWidget& window, const char* name) {
  return find<QLineEdit>(window, name);
}

QWidget& DialogFixture::basicPage(QDialog& dialog) {
  return find<QWidget>(dialog, "CHotkeySettingPage");
}

}  // namespace brennet::test
