#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QtGlobal>

#include <algorithm>
#include <iterator>
#include <utility>

namespace brennet::test {
namespace {

QStringList* caught = nullptr;

// What says something about the machine or the platform, not about a window.
bool isExpected(const QString& warning) {
  const char* const kBeginnings[] = {
      "This plugin does not support ", "QStandardPaths: XDG_RUNTIME_DIR not set",
      "QPixmap::fromWinHICON(), failed to GetIconInfo()",  // not every Windows has all icons
  };
  return std::any_of(std::begin(kBeginnings), std::end(kBeginnings), [&](const char* beginning) {
    return warning.startsWith(QLatin1String(beginning));
  });
}

void handleMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (caught != nullptr) {
    caught->append(text);
    return;
  }
  if (type != QtDebugMsg && type != QtInfoMsg && !isExpected(text)) {
    ADD_FAILURE() << "Qt warns: " << qUtf8Printable(text);
  }
}

void actOn(const std::function<void(QMessageBox&)>& act) {
  auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) {
    // Windows show their boxes when other events are handled.
    whenBoxIsShown(act);
    return;
  }
  act(*box);
  if (QApplication::activeModalWidget() == box) {
    ADD_FAILURE() << "the box is still open";
    box->done(0);
  }
}

}  // namespace

CaughtMessages::CaughtMessages() {
  caught = new QStringList;
}

CaughtMessages::~CaughtMessages() {
  delete std::exchange(caught, nullptr);
}

QStringList CaughtMessages::texts() const {
  return *caught;
}

void whenBoxIsShown(std::function<void(QMessageBox&)> act) {
  QTimer::singleShot(0, [act = std::move(act)] { actOn(act); });
}

void failOnWarnings() {
  qInstallMessageHandler(handleMessage);
}

}  // namespace brennet::test
