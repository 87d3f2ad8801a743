#pragma once

#include <array>

class QRadioButton;

namespace brennet {

class HotkeyConfig;

// The two radio buttons that choose the keys of the quick-chat phrases. Two windows have them.
class QuickChatKeyButtons {
 public:
  using Buttons = std::array<QRadioButton*, 2>;

  // The buttons, in the order of the key sets, and `config` outlive this object.
  QuickChatKeyButtons(Buttons buttons, HotkeyConfig& config)
      : buttons_(buttons), config_(&config) {}

  // Checks the button that the current scheme has chosen. Stores nothing.
  void refresh() const;

  // To be called when the button of `set` was toggled. A checked set is stored; if one of its keys
  // is used for something else, the other button is checked again and the player is told.
  void toggled(int set, bool isChecked) const;

 private:
  [[nodiscard]] QRadioButton& button(int set) const;
  // Checks the button without a signal: the player has chosen nothing.
  void check(int set) const;

  Buttons buttons_;
  HotkeyConfig* config_;
};

}  // namespace brennet
