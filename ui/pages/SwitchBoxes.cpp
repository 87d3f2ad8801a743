#include "ui/pages/SwitchBoxes.h"

#include <QCheckBox>
#include <QSignalBlocker>

#include "model/HotkeyConfig.h"
#include "ui/history/SchemeMarks.h"

namespace brennet {

void SwitchBoxes::refresh() const {
  const HotkeyScheme& scheme = config_->scheme();
  for (const Row& row : rows_) {
    const QSignalBlocker quiet(row.box);
    row.box->setChecked(scheme.*row.field != 0);
  }
}

void SwitchBoxes::mark(const SchemeMarks& marks) const {
  for (const Row& row : rows_) {
    marks.addChoice(*row.box,
                    [field = row.field](const HotkeyScheme& scheme) { return scheme.*field != 0; });
  }
}

void SwitchBoxes::store(Switch field, bool isOn) const {
  if (HotkeyScheme* const scheme = config_->editableScheme()) {
    scheme->*field = static_cast<std::uint8_t>(isOn);
  }
}

}  // namespace brennet
