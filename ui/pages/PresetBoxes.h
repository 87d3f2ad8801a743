#pragma once

#include <array>

class QCheckBox;

namespace brennet {

class HotkeyConfig;

// The three check boxes that put a preset in the place of the item keys; none or one of them is
// checked. Two pages have them.
class PresetBoxes {
 public:
  static constexpr int kPresets = 3;
  using Boxes = std::array<QCheckBox*, kPresets>;

  // The boxes, in the order of the presets, and `config` outlive this object.
  PresetBoxes(Boxes boxes, HotkeyConfig& config) : boxes_(boxes), config_(&config) {}

  // Checks what the current scheme has chosen. Stores nothing.
  void refresh() const;

  // To be called when the box of `preset` was toggled. A checked box is the only one; its preset is
  // chosen unless one of its keys is used otherwise: then the scheme stays as it was, silently.
  // When no box is checked any more, the items have keys of their own again.
  void toggled(int preset, bool isChecked) const;

 private:
  Boxes boxes_;
  HotkeyConfig* config_;
};

}  // namespace brennet
