#include "ui/capture/Dota7KeyFields.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QStringList>
#include <QToolTip>
#include <utility>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "ui/capture/ChangeLine.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/RefusalText.h"
#include "ui/capture/SlotCapture.h"
#include "ui/window/EventGuard.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

constexpr CaptureStyle kStyle = {.modifiersAreKeys = true};

const Dota7KeyField* rowOf(const QLineEdit& field) {
  return findDota7KeyField(viewOf(field.objectName()));
}

bool isModifier(KeyWord key) {
  return key.virtualKey() == Dota7Key::kCtrl || key.virtualKey() == Dota7Key::kAlt;
}

// With both modifiers held, Alt is the one that counts.
Dota7Key toDota7Key(KeyWord key) {
  Dota7Key result{.code = key.virtualKey()};
  if ((key.modifiers() & KeyWord::kCtrl) != 0) result.modifier = Dota7Key::kCtrl;
  if ((key.modifiers() & KeyWord::kAlt) != 0) result.modifier = Dota7Key::kAlt;
  return result;
}

}  // namespace

Dota7KeyFields::Dota7KeyFields(Dota7KeyInfoManager& manager, HotkeyConfig* config,
                               std::function<void(const QString& why)> tellUsed)
    : manager_(&manager),
      config_(config),
      tellUsed_(std::move(tellUsed)),
      filter_(
          kStyle, [](const QLineEdit& field) { return rowOf(field) != nullptr; },
          [this](QLineEdit& field, const Capture& capture) { take(field, capture); }) {}

void Dota7KeyFields::install(const QWidget& window, QObject& page) {
  for (QLineEdit* const field : filter_.install(window, page)) {
    fields_.push_back({field, rowOf(*field)});
  }
}

bool Dota7KeyFields::filter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) outline_.clear();
  if (event->type() == QEvent::ToolTip && showToolTip(watched, static_cast<QHelpEvent&>(*event))) {
    return true;
  }
  return filter_.filter(watched, event);
}

// Made when it is asked for, since it tells of another field, too.
bool Dota7KeyFields::showToolTip(QObject* watched, const QHelpEvent& event) const {
  auto* const field = qobject_cast<QLineEdit*>(watched);
  const Dota7KeyField* const row = field != nullptr ? rowOf(*field) : nullptr;
  if (row == nullptr) return false;
  return guarded([&] {
    QToolTip::showText(event.globalPos(), joinedLines(toolTipOf(*row), changeLine(*field)), field);
    return true;
  });
}

QString Dota7KeyFields::toolTipOf(const Dota7KeyField& row) const {
  const Dota7Settings& settings = manager_->settings();
  const Dota7Key key = settings.key(row);
  if (key.code == 0) return noKeyLine(dota7FieldText(row));
  QString text = keyLine(toQString(settings.keyText(row)), dota7FieldText(row));
  if (const Dota7KeyField* const other = settings.holderOf(row, key)) {
    text += QLatin1Char('\n') + alsoLine(placeText(*other, row));
  }
  return text;
}

QString Dota7KeyFields::placeText(const Dota7KeyField& row, const Dota7KeyField& from) {
  const bool isHere = isDota7ChatKey(row) == isDota7ChatKey(from);
  return isHere ? dota7FieldText(row) : dota7FieldTextElsewhere(row);
}

void Dota7KeyFields::refresh() {
  outline_.clear();
  // A lone modifier that is still down has been stored, and is removed when it is released.
  for (const Field& field : fields_) {
    field.field->setText(toQString(manager_->settings().keyText(*field.row)));
  }
}

void Dota7KeyFields::leadTo(const Dota7KeyField& row) {
  for (const Field& field : fields_) {
    if (field.row != &row) continue;
    outline_.show({field.field});
    field.field->setFocus(Qt::OtherFocusReason);
  }
}

void Dota7KeyFields::put(const Dota7KeyField& row, Dota7Key key) {
  if (key.code == 0) {
    manager_->settings().clearKey(row);
  } else if (!manager_->settings().storeKey(row, key)) {
    return;
  }
  refresh();
}

void Dota7KeyFields::take(QLineEdit& field, const Capture& capture) {
  Dota7Settings& settings = manager_->settings();
  const Dota7KeyField& row = *rowOf(field);
  const bool isCaptured = capture.outcome == Capture::Outcome::Captured;
  const Dota7Key key = toDota7Key(capture.key);
  const Dota7KeyField* const holder = isCaptured ? settings.holderOf(row, key) : nullptr;
  const bool isStored = isCaptured && settings.storeKey(row, key);
  if (!isStored) settings.clearKey(row);
  const bool isPasted = isCaptured && isPaste(capture.key);
  if (isStored && !isPasted) {
    field.setText(textOf(capture.key));
    return;
  }
  // As in all fields, a paste is kept if it is free; the field and the message do not depend on
  // that.
  if (isPasted && config_ != nullptr) makeRoomForPaste(*config_);
  field.clear();
  if (isCaptured) tell(row, capture.key, holder);
}

void Dota7KeyFields::tell(const Dota7KeyField& refusing, KeyWord key, const Dota7KeyField* holder) {
  QStringList lines;
  if (holder != nullptr) {
    lines += keyLine(textOf(key), placeText(*holder, refusing));
    for (const Field& field : fields_) {
      if (field.row == holder) outline_.show({field.field});
    }
  }
  if (isPaste(key)) lines += pasteLine(textOf(key));
  tellUsed_(lines.join(QLatin1Char('\n')));
}

QString Dota7KeyFields::textOf(KeyWord key) const {
  QString name = toQString(manager_->keyName(key.virtualKey()));
  if (isModifier(key)) return name;
  QString text;
  if ((key.modifiers() & KeyWord::kCtrl) != 0) text += QStringLiteral("CTRL +");
  if ((key.modifiers() & KeyWord::kAlt) != 0) text += QStringLiteral("ALT +");
  return text + QLatin1Char(' ') + name;
}

}  // namespace brennet
