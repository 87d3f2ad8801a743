#include "ui/CaptureFields.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QString>
#include <algorithm>
#include <utility>

#include "ui/Text.h"
#include "ui/VirtualKey.h"

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

CaptureFields::CaptureFields(CapturePage page, HotkeyConfig& config)
    : page_(std::move(page)), config_(&config), capture_(page_.style) {}

void CaptureFields::install(const QWidget& window, QObject& page) {
  const QRegularExpression names(QStringLiteral("^edt"));
  for (QLineEdit* const field : window.findChildren<QLineEdit*>(names)) {
    field->setAttribute(Qt::WA_InputMethodEnabled, false);
    field->installEventFilter(&page);
    if (page_.captures(*field)) field->setReadOnly(true);
    const auto setting = page_.settingOf(viewOf(field->objectName()));
    if (setting) fields_.push_back({field, *setting});
  }
}

void CaptureFields::refresh() {
  static_cast<void>(capture_.leave());
  for (const Field& row : fields_) row.field->setText(keyText(keyOf(*config_, row.setting)));
}

std::optional<KeySetting> CaptureFields::settingOf(const QLineEdit& field) const {
  const auto row = std::find_if(fields_.begin(), fields_.end(),
                                [&](const Field& candidate) { return candidate.field == &field; });
  if (row == fields_.end()) return std::nullopt;
  return row->setting;
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
  if (capture.outcome != Capture::Outcome::Shown) page_.trace(field);
  const bool isUsed = store(capture, settingOf(field), *config_);
  field.setText(isUsed ? QString() : toQString(capture.text.view()));
  if (isUsed) page_.tellUsed();
}

}  // namespace brennet
