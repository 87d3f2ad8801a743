#include "ui/capture/CaptureFields.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "model/KeyAssignment.h"
#include "ui/capture/ChangeLine.h"
#include "ui/capture/RefusalText.h"
#include "ui/capture/SlotCapture.h"
#include "ui/window/EventGuard.h"
#include "ui/window/Text.h"

namespace brennet {

CaptureFields::CaptureFields(CapturePage page, HotkeyConfig& config)
    : page_(std::move(page)),
      config_(&config),
      filter_(page_.style, page_.captures,
              [this](QLineEdit& field, const Capture& capture) { take(field, capture); }) {}

void CaptureFields::install(const QWidget& window, QObject& page) {
  for (QLineEdit* const field : filter_.install(window, page)) {
    const auto slot = page_.slotOf(viewOf(field->objectName()));
    if (slot) fields_.push_back({field, *slot});
  }
}

void CaptureFields::refresh() {
  filter_.forget();
  outline_.clear();
  for (const Field& row : fields_) row.field->setText(keyText(keyAt(config_->scheme(), row.slot)));
}

std::optional<KeySlot> CaptureFields::slotOf(const QLineEdit& field) const {
  const auto row = std::find_if(fields_.begin(), fields_.end(),
                                [&](const Field& candidate) { return candidate.field == &field; });
  if (row == fields_.end()) return std::nullopt;
  return row->slot;
}

bool CaptureFields::filter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) outline_.clear();
  if (event->type() == QEvent::ToolTip && showToolTip(watched, static_cast<QHelpEvent&>(*event))) {
    return true;
  }
  return filter_.filter(watched, event);
}

// Made when it is asked for, since it tells of all other keys, too.
bool CaptureFields::showToolTip(QObject* watched, const QHelpEvent& event) const {
  auto* const field = qobject_cast<QLineEdit*>(watched);
  const std::optional<KeySlot> slot = field != nullptr ? slotOf(*field) : std::nullopt;
  if (!slot) return false;
  return guarded([&] {
    const QString text = fieldText(config_->scheme(), *slot);
    QToolTip::showText(event.globalPos(), joinedLines(text, changeLine(*field)), field);
    return true;
  });
}

void CaptureFields::outline(const std::vector<KeySlot>& holders) {
  std::vector<QWidget*> fields;
  for (const Field& row : fields_) {
    if (std::ranges::find(holders, row.slot) != holders.end()) fields.push_back(row.field);
  }
  outline_.show(std::move(fields));
}

void CaptureFields::leadTo(KeySlot slot) {
  const auto row = std::ranges::find_if(fields_, [&](const Field& each) {
    return each.slot == slot && each.field->isVisibleTo(each.field->window());
  });
  if (row == fields_.end()) return;
  outline({slot});
  row->field->window()->activateWindow();
  row->field->setFocus(Qt::OtherFocusReason);
}

void CaptureFields::put(KeySlot slot, KeyWord key) {
  HotkeyScheme* const scheme = config_->editableScheme();
  if (scheme == nullptr) return;
  if (!key.isSet()) {
    storeKey(*scheme, slot, key);
  } else if (!assignKey(*scheme, slot, key)) {
    return;
  }
  outline_.clear();
  for (const Field& row : fields_) {
    if (row.slot == slot) row.field->setText(keyText(key));
  }
}

void CaptureFields::take(QLineEdit& field, const Capture& capture) {
  if (capture.outcome != Capture::Outcome::Shown) page_.trace(field);
  const std::optional<KeySlot> slot = slotOf(field);
  const std::optional<Refusal> refusal = store(capture, slot, *config_);
  field.setText(refusal ? QString() : toQString(capture.text.view()));
  if (refusal) tell(slot, *refusal);
}

void CaptureFields::tell(const std::optional<KeySlot>& slot, const Refusal& refusal) {
  std::vector<KeySlot> holders;
  holders.reserve(refusal.reasons.size());
  for (const KeyConflict& reason : refusal.reasons) holders.push_back(reason.holder);
  outline(holders);
  page_.tellUsed(refusalText(refusal, slot ? windowOf(*slot) : KeyWindow::Main));
}

}  // namespace brennet
