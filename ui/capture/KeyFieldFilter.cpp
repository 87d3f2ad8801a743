#include "ui/capture/KeyFieldFilter.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

#include "ui/capture/VirtualKey.h"
#include "ui/window/EventGuard.h"

namespace brennet {
namespace {

KeyEvent toKeyEvent(const QKeyEvent& event) {
  return {
      .isPress = event.type() == QEvent::KeyPress,
      .isRepeat = event.isAutoRepeat(),
      .virtualKey = virtualKeyOf(event),
      .controlIsHeld = event.modifiers().testFlag(Qt::ControlModifier),
      .altIsHeld = event.modifiers().testFlag(Qt::AltModifier),
  };
}

}  // namespace

std::vector<QLineEdit*> editFieldsOf(const QWidget& window) {
  std::vector<QLineEdit*> fields;
  for (QLineEdit* const field : window.findChildren<QLineEdit*>()) {
    if (field->objectName().startsWith(QLatin1String("edt"))) fields.push_back(field);
  }
  return fields;
}

KeyFieldFilter::KeyFieldFilter(CaptureStyle style, Captures captures, OnCapture onCapture)
    : capture_(style), captures_(std::move(captures)), onCapture_(std::move(onCapture)) {}

std::vector<QLineEdit*> KeyFieldFilter::install(const QWidget& window, QObject& page) const {
  std::vector<QLineEdit*> capturing;
  for (QLineEdit* const field : editFieldsOf(window)) {
    field->installEventFilter(&page);
    if (!captures_(*field)) continue;
    field->setAttribute(Qt::WA_InputMethodEnabled, false);
    field->setReadOnly(true);
    capturing.push_back(field);
  }
  return capturing;
}

bool KeyFieldFilter::filter(QObject* watched, QEvent* event) {
  return guarded([&] { return handle(watched, event); });
}

bool KeyFieldFilter::handle(QObject* watched, QEvent* event) {
  auto* const field = qobject_cast<QLineEdit*>(watched);
  if (field == nullptr || !captures_(*field)) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // The key comes here, even if it is a shortcut.
      event->accept();
      return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      pass(*field, capture_.handle(toKeyEvent(*static_cast<QKeyEvent*>(event))));
      return true;
    case QEvent::ContextMenu:
      // The menu of a line edit is for text.
      return true;
    case QEvent::FocusOut:
      pass(*field, capture_.leave());
      return false;
    default:
      return false;
  }
}

void KeyFieldFilter::pass(QLineEdit& field, const Capture& capture) const {
  if (capture.outcome != Capture::Outcome::Ignored) onCapture_(field, capture);
}

}  // namespace brennet
