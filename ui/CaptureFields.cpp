#include "ui/CaptureFields.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QString>
#include <utility>

#include "ui/VirtualKey.h"

namespace brennet {
namespace {

QString toQString(const std::u16string& text) {
  return QString::fromUtf16(text.data(), static_cast<int>(text.size()));
}

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

CaptureFields::CaptureFields(CapturePage page, HotkeyConfig& config)
    : page_(std::move(page)), config_(&config), capture_(page_.style) {}

void CaptureFields::install(QWidget& page) {
  const QRegularExpression names(QStringLiteral("^edt"));
  for (QLineEdit* const field : page.findChildren<QLineEdit*>(names)) {
    field->setAttribute(Qt::WA_InputMethodEnabled, false);
    field->installEventFilter(&page);
  }
}

bool CaptureFields::filter(QObject* watched, QEvent* event) {
  auto* const field = qobject_cast<QLineEdit*>(watched);
  if (field == nullptr || !page_.captures(*field)) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // The key comes here, whatever it is a shortcut of.
      event->accept();
      return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      handleKey(*field, *static_cast<QKeyEvent*>(event));
      return true;
    case QEvent::FocusOut:
      if (capture_.leave().outcome == Capture::Outcome::Shown) field->clear();
      return false;
    default:
      return false;
  }
}

void CaptureFields::handleKey(QLineEdit& field, const QKeyEvent& event) {
  const Capture capture = capture_.handle(toKeyEvent(event));
  if (capture.outcome == Capture::Outcome::Ignored) return;
  const bool isUsed = store(capture, page_.settingOf(field), *config_);
  field.setText(isUsed ? QString() : toQString(capture.text));
  if (isUsed) page_.tellUsed();
}

}  // namespace brennet
