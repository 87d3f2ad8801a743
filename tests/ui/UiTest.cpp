#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QtGlobal>

#include <algorithm>
#include <iterator>
#include <utility>

namespace brennet::test {
namespace {

QStringList* caught = nullptr;

// Longer than any test that still makes progress keeps a box waiting.
constexpr int kPatienceMs = 20'000;

// Closes each box that is still there after a while.
class UnansweredBoxes : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const box = qobject_cast<QMessageBox*>(watched);
    if (box != nullptr && event->type() == QEvent::Show) {
      // A timer that is the box's child goes with it, instead of running to its end.
      auto* const patience = new QTimer(box);
      patience->setSingleShot(true);
      QObject::connect(patience, &QTimer::timeout, box, [box] {
        if (!box->isVisible()) return;
        ADD_FAILURE() << "nobody answers: " << qUtf8Printable(box->text());
        box->done(0);
      });
      patience->start(kPatienceMs);
    }
    return QObject::eventFilter(watched, event);
  }
};

// Warnings about the machine or the platform, not about a window.
bool isExpected(const QString& warning) {
  const char* const kBeginnings[] = {
      "This plugin does not support ", "QStandardPaths: XDG_RUNTIME_DIR not set",
      "QPixmap::fromWinHICON(), failed to GetIconInfo()",  // some Windows lack some icons
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

// A box may come up during any event, so the timer looks for one again and again.
ExpectedBox::ExpectedBox(std::function<void(QMessageBox&)> act) : act_(std::move(act)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
  timer_.start(0);
}

ExpectedBox::~ExpectedBox() {
  if (!isShown_) ADD_FAILURE() << "no box has come up";
}

void ExpectedBox::look() {
  auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) return;
  isShown_ = true;
  timer_.stop();
  act_(*box);
  if (QApplication::activeModalWidget() == box) {
    ADD_FAILURE() << "the box is still open";
    box->done(0);
  }
}

NoBoxes::NoBoxes() {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    ADD_FAILURE() << "a box comes up";
    box->close();
  });
  timer_.start(0);
}

void closeUnansweredBoxes() {
  qApp->installEventFilter(new UnansweredBoxes(qApp));
}

void failOnWarnings() {
  qInstallMessageHandler(handleMessage);
}

namespace {

// A tool tip goes only after a moment.
void hideToolTip() {
  QToolTip::hideText();
  while (!QToolTip::text().isEmpty()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

}  // namespace

QString toolTipOf(QWidget& widget) {
  hideToolTip();  // that of an earlier test
  constexpr QPoint kInside(5, 5);
  QHelpEvent request(QEvent::ToolTip, kInside, widget.mapToGlobal(kInside));
  QCoreApplication::sendEvent(&widget, &request);
  QString text = QToolTip::text();
  hideToolTip();
  return text;
}

}  // namespace brennet::test
