#pragma once

#include <QMessageBox>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <utility>

// What the tests of windows share. Their programs have main from UiTestMain.cpp: a QApplication
// without a screen, in which any warning from Qt fails the test that causes it.

namespace brennet::test {

// Collects Qt's messages, warnings included, as long as it lives.
class CaughtMessages {
 public:
  CaughtMessages();
  ~CaughtMessages();
  CaughtMessages(const CaughtMessages&) = delete;
  CaughtMessages& operator=(const CaughtMessages&) = delete;

  [[nodiscard]] QStringList texts() const;
};

// Calls `act` with the next modal message box that is shown while it lives and events are handled.
// The test fails if there is none, or if the box is still open after `act`; the box is closed then,
// so that the test ends.
class [[nodiscard]] ExpectedBox {
 public:
  explicit ExpectedBox(std::function<void(QMessageBox&)> act);
  ~ExpectedBox();
  ExpectedBox(const ExpectedBox&) = delete;
  ExpectedBox& operator=(const ExpectedBox&) = delete;

 private:
  void look();

  std::function<void(QMessageBox&)> act_;
  QTimer timer_;
  bool isShown_ = false;
};

// Keep the result as long as the box may come up: const auto box = whenBoxIsShown(...);
[[nodiscard]] inline ExpectedBox whenBoxIsShown(std::function<void(QMessageBox&)> act) {
  return ExpectedBox(std::move(act));
}

// Fails the test if a box comes up while it lives, and closes the box.
class [[nodiscard]] NoBoxes {
 public:
  NoBoxes();

 private:
  QTimer timer_;
};

// From now on warnings are failures, except those about the machine or the platform.
void failOnWarnings();

// From now on a message box that nobody answers fails the test instead of stopping it.
void closeUnansweredBoxes();

// The tool tip that a widget shows where the mouse rests on it; empty for none. None is shown any
// more when the function returns.
[[nodiscard]] QString toolTipOf(QWidget& widget);

}  // namespace brennet::test
