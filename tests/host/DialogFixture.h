#pragma once

#include <QDialog>
#include <QLineEdit>

#include <functional>

#include "tests/host/HostFixture.h"

class QAbstractButton;

namespace brennet::test {

// The settings dialog as a host opens it, with a timer instead of the player.
class DialogFixture : public HostFixture {
 protected:
  using Act = std::function<void(QDialog&)>;

  // Opens the dialog, calls `act` with it and clicks the button of that name. Returns the answer.
  bool open(const char* button, const Act& act);

  // The same with an `act` that ends the dialog itself.
  bool openUntil(const Act& act);

  // Clicks `opener`, calls `act` with the modal window that this opens, and clicks the button named
  // `answer` there.
  static void inWindowOf(QAbstractButton& opener, const char* answer, const Act& act);

  static QAbstractButton& button(QWidget& window, const char* name);
  static QLineEdit& field(QWidget& window, const char* name);
  static QWidget& basicPage(QDialog& dialog);

  // Whether the last dialog saved its settings.
  bool saved_ = false;
};

}  // namespace brennet::test
