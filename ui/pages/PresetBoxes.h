#pragma once

#include <array>
#include <vector>

#include "model/KeySlot.h"

class QCheckBox;

namespace brennet {

class HotkeyConfig;
class SchemeMarks;

// The three check boxes that replace the item keys by a preset; at most one is checked. Two pages
// have them.
class PresetBoxes {
 public:
  static constexpr int kPresets = 3;
  using Boxes = std::array<QCheckBox*, kPresets>;

  // The boxes, in the order of the presets, and `config` outlive this object.
  PresetBoxes(Boxes boxes, HotkeyConfig& config) : boxes_(boxes), config_(&config) {}

  // Checks the box that the current scheme has chosen. Stores nothing.
  void refresh() const;

  // Has the boxes marked whose choice has changed.
  void mark(const SchemeMarks& marks) const;

  // Gives the keyboard to the box that the current scheme has chosen, if any.
  void leadToChosen() const;

  // To be called when the box of `preset` was toggled. A checked box unchecks the others; its
  // preset is chosen unless one of its keys is used for something else: then the scheme stays as it
  // was, and a tool tip on the box says why. When no box is checked any more, the items have their
  // own keys again. Returns the settings that are in the way of the preset.
  std::vector<KeySlot> toggled(int preset, bool isChecked);

 private:
  Boxes boxes_;
  HotkeyConfig* config_;
  QCheckBox* refused_ = nullptr;  // whose tool tip says why its preset was refused last
};

}  // namespace brennet
