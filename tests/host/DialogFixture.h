#pragma once

#include <QDialog>
#include <QLineEdit>

#include <functional>

#include "tests/host/HostFixture.h"

class QAbstractButton;

namespace brennet::test {

// The settings dialog as a host opens it, with a timer in the place of the player.
class DialogFixture : public HostFixture {
 protected:
  using Act = std::function<void(QDialog&)>;

  // Opens the dialog, does `act` in it and clicks the button of that name. Returns the answer.
  bool open(const char* button, const Act& act);

  // The same with an `act` that ends the dialog itself.
  bool openUntil(const Act& act);

  // Clicks the button, does `act` in the modal window that it opens, and clicks the button of the
  // name `answer` there.
  static void inWindowOf(QAbstractButton& opener, const char* answer, const Act& act);

  static QAbstractButton& button(QWidget& window, const char* name);
  static QLineEdit& field(QWidget& window, const char* name);
  static QWidget& basicPage(QDialog& dialog);

  // What the last dialog said of its settings.
  bool saved_ = false;
};

}  // namespace brennet::test
