#pragma once

#include <QMessageBox>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <utility>

// What the tests of windows share. Their programs have main from UiTestMain.cpp: a QApplication
// without a screen, in which each warning of Qt fails the test that it comes up in.

namespace brennet::test {

// Takes the messages of Qt, warnings too, as long as it lives.
class CaughtMessages {
 public:
  CaughtMessages();
  ~CaughtMessages();
  CaughtMessages(const CaughtMessages&) = delete;
  CaughtMessages& operator=(const CaughtMessages&) = delete;

  [[nodiscard]] QStringList texts() const;
};

// Does `act` with the next message box that is shown modally while it lives, once events are
// handled. The test fails when none is; and when the box is still open afterwards: it is closed
// then, so that the test ends.
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

// To be kept as long as the box may come: const auto box = whenBoxIsShown(...);
[[nodiscard]] inline ExpectedBox whenBoxIsShown(std::function<void(QMessageBox&)> act) {
  return ExpectedBox(std::move(act));
}

// Fails where a box comes up in its life, instead of waiting for somebody to close it.
class [[nodiscard]] NoBoxes {
 public:
  NoBoxes();

 private:
  QTimer timer_;
};

// From now on warnings are failures; what the offscreen platform says about itself is not.
void failOnWarnings();

// From now on a message box that nobody answers fails the test instead of stopping it.
void closeUnansweredBoxes();

}  // namespace brennet::test
