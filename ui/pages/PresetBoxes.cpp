#include "ui/pages/PresetBoxes.h"

#include <QAccessible>
#include <QCheckBox>
#include <QSignalBlocker>
#include <QToolTip>

#include <algorithm>
#include <utility>

#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"
#include "ui/capture/RefusalText.h"
#include "ui/history/SchemeMarks.h"

namespace brennet {

namespace {

// At once, and whenever the mouse is over the box. Screen readers take the tool tip for the
// description of the box; they are told that it has changed, as no message box comes up.
void showWhy(QCheckBox& box, const QString& why) {
  box.setToolTip(why);
  for (const QAccessible::Event type : {QAccessible::DescriptionChanged, QAccessible::Alert}) {
    QAccessibleEvent event(&box, type);
    QAccessible::updateAccessibility(&event);
  }
  if (box.isVisible()) QToolTip::showText(box.mapToGlobal(box.rect().bottomLeft()), why, &box);
}

std::vector<KeySlot> holdersIn(const std::vector<TakenKey>& taken) {
  std::vector<KeySlot> holders;
  holders.reserve(taken.size());
  for (const TakenKey& key : taken) holders.push_back(key.conflict.holder);
  return holders;
}

}  // namespace

void PresetBoxes::refresh() const {
  const std::int32_t chosen = config_->scheme().NumComboKeyIndex;
  for (int preset = 0; preset < kPresets; ++preset) {
    QCheckBox* const box = boxes_[static_cast<std::size_t>(preset)];
    const QSignalBlocker quiet(box);
    box->setChecked(preset == chosen);
    box->setToolTip({});
  }
}

void PresetBoxes::mark(const SchemeMarks& marks) const {
  for (int preset = 0; preset < kPresets; ++preset) {
    marks.addChoice(
        *boxes_[static_cast<std::size_t>(preset)],
        [preset](const HotkeyScheme& scheme) { return scheme.NumComboKeyIndex == preset; });
  }
}

void PresetBoxes::leadToChosen() const {
  const auto preset = static_cast<std::size_t>(config_->scheme().NumComboKeyIndex);
  if (preset < boxes_.size()) boxes_[preset]->setFocus(Qt::OtherFocusReason);
}

std::vector<KeySlot> PresetBoxes::toggled(int preset, bool isChecked) {
  if (QCheckBox* const told = std::exchange(refused_, nullptr)) told->setToolTip({});
  if (isChecked) {
    const std::vector<TakenKey> taken = takenKeysOfPreset(config_->scheme(), preset);
    config_->SetNumComboKeyIndex(preset);
    QCheckBox* const own = boxes_[static_cast<std::size_t>(preset)];
    for (QCheckBox* const box : boxes_) {
      if (box != own) box->setChecked(false);
    }
    if (!taken.empty()) {
      showWhy(*own, refusalText(taken, KeyWindow::Main));
      refused_ = own;
    }
    return holdersIn(taken);
  }
  const bool anyIsLeft = std::any_of(boxes_.begin(), boxes_.end(),
                                     [](const QCheckBox* box) { return box->isChecked(); });
  if (!anyIsLeft) config_->SetNumComboKeyIndex(HotkeyScheme::kItemKeysFromMap);
  return {};
}

}  // namespace brennet
