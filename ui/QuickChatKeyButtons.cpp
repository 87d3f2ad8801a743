#include "ui/QuickChatKeyButtons.h"

#include <QRadioButton>
#include <QSignalBlocker>

#include "model/HotkeyConfig.h"
#include "ui/KeyMessages.h"

namespace brennet {

void QuickChatKeyButtons::refresh() const {
  check(static_cast<int>(config_->scheme().QuickChatIndex));
}

void QuickChatKeyButtons::toggled(int set, bool isChecked) const {
  if (!isChecked || config_->SetQuickChatIndex(static_cast<std::uint32_t>(set))) return;
  check(1 - set);
  tellKeySetIsUsed(button(set).window());
}

QRadioButton& QuickChatKeyButtons::button(int set) const {
  return *buttons_[static_cast<std::size_t>(set)];
}

// A button that is unchecked by the other one stays as quiet: a scheme that refuses both sets must
// not send the choice back and forth.
void QuickChatKeyButtons::check(int set) const {
  const QSignalBlocker quietOne(&button(0));
  const QSignalBlocker quietOther(&button(1));
  button(set).setChecked(true);
}

}  // namespace brennet
