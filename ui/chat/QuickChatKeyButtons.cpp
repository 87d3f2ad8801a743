#include "ui/chat/QuickChatKeyButtons.h"

#include <QRadioButton>
#include <QSignalBlocker>

#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"
#include "ui/capture/KeyMessages.h"
#include "ui/capture/RefusalText.h"

namespace brennet {

void QuickChatKeyButtons::refresh() const {
  check(config_->scheme().QuickChatIndex == 0 ? 0 : 1);
}

void QuickChatKeyButtons::toggled(int set, bool isChecked) const {
  if (!isChecked) return;
  // The choice may come from the buttons of another window.
  const auto index = static_cast<std::uint32_t>(set);
  const QString why =
      refusalText(takenQuickChatKeys(config_->scheme(), index), KeyWindow::QuickChat);
  const bool isChosen = config_->SetQuickChatIndex(index);
  check(isChosen ? set : 1 - set);
  if (isChosen) return;
  // A hidden window asks through its parent window.
  QWidget* const window = button(set).window();
  const bool isAside = !window->isVisible() && window->parentWidget() != nullptr;
  tellKeySetIsUsed(isAside ? window->parentWidget() : window, why);
}

QRadioButton& QuickChatKeyButtons::button(int set) const {
  return *buttons_[static_cast<std::size_t>(set)];
}

// The button that gets unchecked is silent too: a scheme that refuses both sets must not send the
// choice back and forth.
void QuickChatKeyButtons::check(int set) const {
  const QSignalBlocker quietOne(&button(0));
  const QSignalBlocker quietOther(&button(1));
  button(set).setChecked(true);
}

}  // namespace brennet
