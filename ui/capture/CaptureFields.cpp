#include "ui/capture/CaptureFields.h"

#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "ui/capture/SlotCapture.h"
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
  for (const Field& row : fields_) row.field->setText(keyText(keyAt(config_->scheme(), row.slot)));
}

std::optional<KeySlot> CaptureFields::slotOf(const QLineEdit& field) const {
  const auto row = std::find_if(fields_.begin(), fields_.end(),
                                [&](const Field& candidate) { return candidate.field == &field; });
  if (row == fields_.end()) return std::nullopt;
  return row->slot;
}

void CaptureFields::take(QLineEdit& field, const Capture& capture) {
  if (capture.outcome != Capture::Outcome::Shown) page_.trace(field);
  const bool isUsed = store(capture, slotOf(field), *config_);
  field.setText(isUsed ? QString() : toQString(capture.text.view()));
  if (isUsed) page_.tellUsed();
}

}  // namespace brennet
