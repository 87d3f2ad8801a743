#pragma once

namespace brennet {

// What all pages and windows of settings have in common, for the dialog that holds them.
class SettingPage {
 public:
  SettingPage() = default;
  SettingPage(const SettingPage&) = delete;
  SettingPage& operator=(const SettingPage&) = delete;
  virtual ~SettingPage() = default;

  // Shows what is set now, in the current scheme or in the registry. Stores nothing.
  virtual void showSettings() = 0;

  // Clears what the player set on this page, and shows that. A page whose settings another page of
  // the mode has already cleared only shows it.
  virtual void clearSettings() { showSettings(); }
};

}  // namespace brennet
