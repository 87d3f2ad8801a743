#pragma once

#include <QMessageBox>
#include <QStringList>

#include <functional>

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

// Does `act` with the next message box that is shown modally, once events are handled. The test
// fails when the box is still open afterwards; it is closed then, so that the test ends.
void whenBoxIsShown(std::function<void(QMessageBox&)> act);

// From now on warnings are failures; what the offscreen platform says about itself is not.
void failOnWarnings();

}  // namespace brennet::test
