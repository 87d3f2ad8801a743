#include "ui/pages/PresetBoxes.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include <algorithm>

#include "model/HotkeyConfig.h"

namespace brennet {

void PresetBoxes::refresh() const {
  const std::int32_t chosen = config_->scheme().NumComboKeyIndex;
  for (int preset = 0; preset < kPresets; ++preset) {
    QCheckBox* const box = boxes_[static_cast<std::size_t>(preset)];
    const QSignalBlocker quiet(box);
    box->setChecked(preset == chosen);
  }
}

void PresetBoxes::toggled(int preset, bool isChecked) const {
  if (isChecked) {
    config_->SetNumComboKeyIndex(preset);
    QCheckBox* const own = boxes_[static_cast<std::size_t>(preset)];
    for (QCheckBox* const box : boxes_) {
      if (box != own) box->setChecked(false);
    }
    return;
  }
  const bool anyIsLeft = std::any_of(boxes_.begin(), boxes_.end(),
                                     [](const QCheckBox* box) { return box->isChecked(); });
  if (!anyIsLeft) config_->SetNumComboKeyIndex(HotkeyScheme::kItemKeysFromMap);
}

}  // namespace brennet
