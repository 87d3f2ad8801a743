#include "ui/pages/SwitchBoxes.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include "model/HotkeyConfig.h"

namespace brennet {

void SwitchBoxes::refresh() const {
  const HotkeyScheme& scheme = config_->scheme();
  for (const Row& row : rows_) {
    const QSignalBlocker quiet(row.box);
    row.box->setChecked(scheme.*row.field != 0);
  }
}

void SwitchBoxes::store(Switch field, bool isOn) const {
  if (HotkeyScheme* const scheme = config_->editableScheme()) {
    scheme->*field = static_cast<std::uint8_t>(isOn);
  }
}

}  // namespace brennet
