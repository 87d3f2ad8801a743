#include "ui/capture/CaptureFields.h"

#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "ui/Text.h"

namespace brennet {

CaptureFields::CaptureFields(CapturePage page, HotkeyConfig& config)
    : page_(std::move(page)),
      config_(&config),
      filter_(page_.style, page_.captures,
              [this](QLineEdit& field, const Capture& capture) { take(field, capture); }) {}

void CaptureFields::install(const QWidget& window, QObject& page) {
  for (QLineEdit* const field : filter_.install(window, page)) {
    const auto setting = page_.settingOf(viewOf(field->objectName()));
    if (setting) fields_.push_back({field, *setting});
  }
}

void CaptureFields::refresh() {
  filter_.forget();
  for (const Field& row : fields_) row.field->setText(keyText(keyOf(*config_, row.setting)));
}

std::optional<KeySetting> CaptureFields::settingOf(const QLineEdit& field) const {
  const auto row = std::find_if(fields_.begin(), fields_.end(),
                                [&](const Field& candidate) { return candidate.field == &field; });
  if (row == fields_.end()) return std::nullopt;
  return row->setting;
}

void CaptureFields::take(QLineEdit& field, const Capture& capture) {
  if (capture.outcome != Capture::Outcome::Shown) page_.trace(field);
  const bool isUsed = store(capture, settingOf(field), *config_);
  field.setText(isUsed ? QString() : toQString(capture.text.view()));
  if (isUsed) page_.tellUsed();
}

}  // namespace brennet
