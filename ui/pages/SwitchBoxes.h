#pragma once

#include <cstdint>
#include <vector>

class QCheckBox;

namespace brennet {

class HotkeyConfig;
class SchemeMarks;
struct HotkeyScheme;

// Check boxes that show switches of the current scheme.
class SwitchBoxes {
 public:
  using Switch = std::uint8_t HotkeyScheme::*;

  // `config` and all boxes outlive this object.
  explicit SwitchBoxes(HotkeyConfig& config) : config_(&config) {}

  void add(QCheckBox& box, Switch field) { rows_.push_back({&box, field}); }

  // Checks the boxes of the switches that are on in the current scheme. Stores nothing.
  void refresh() const;

  // Has the boxes marked whose switch has changed.
  void mark(const SchemeMarks& marks) const;

  // Stores a switch; does nothing if the current scheme cannot be changed.
  void store(Switch field, bool isOn) const;

 private:
  struct Row {
    QCheckBox* box;
    Switch field;
  };

  HotkeyConfig* config_;
  std::vector<Row> rows_;
};

}  // namespace brennet
