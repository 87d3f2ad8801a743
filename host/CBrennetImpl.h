#pragma once

#include <memory>
#include <string>

#include "brennet/IBrennet.h"
#include "model/HotkeyConfig.h"
#include "platform/Files.h"

namespace brennet {

class Dota7KeyInfoManager;

// The only implementation of IBrennet, and all its state between calls. The library has one such
// object (GetBrennetPtr.cpp), each test its own. IBrennet.h says what each operation promises to
// the host. Those that only answer from the settings are written here.
class CBrennetImpl final : public IBrennet {
 public:
  CBrennetImpl();
  ~CBrennetImpl();
  CBrennetImpl(const CBrennetImpl&) = delete;
  CBrennetImpl& operator=(const CBrennetImpl&) = delete;

  bool BRENNET_CALL LoadSettings(const wchar_t* path) noexcept override;
  void BRENNET_CALL SetDataFolder(const wchar_t* folder) noexcept override;
  bool BRENNET_CALL ShowSettingsDialog(bool* saved, std::uint32_t saveTime) noexcept override;
  bool BRENNET_CALL FillHotkeyBlock(HotkeyBlock* block) noexcept override;
  std::uint8_t BRENNET_CALL GetDisableLWinFlag() noexcept override {
    return config_.scheme().DisableLWinFlag;
  }
  std::uint32_t BRENNET_CALL GetLastSaveTime() noexcept override { return config_.LastSaveTime(); }
  bool BRENNET_CALL SetEnabled(bool enable, std::uint32_t saveTime) noexcept override;
  std::uint8_t BRENNET_CALL GetViewNoDragFlag() noexcept override {
    return config_.scheme().ViewNoDragFlag;
  }
  bool BRENNET_CALL IsCapsLockUsed() noexcept override;
  bool BRENNET_CALL IsShiftUsed() noexcept override;
  std::int32_t BRENNET_CALL ApplyHotkeyBlock(HotkeyBlock* block,
                                             std::uint32_t saveTime) noexcept override;
  std::uint8_t BRENNET_CALL GetStartJSQFlag() noexcept override {
    return config_.scheme().StartJSQFlag;
  }

  // What the player has saved; all operations answer from it.
  [[nodiscard]] const HotkeyConfig& config() const { return config_; }

 private:
  // Runs the dialog on the working copy. Returns whether the player confirmed.
  bool runDialog();

  // Saves `config` to the settings file.
  bool save(HotkeyConfig& config, std::uint32_t saveTime);

  // Saves the working copy and, if that succeeds, makes it the saved configuration.
  bool saveWorkingCopy(std::uint32_t saveTime);

  std::u16string settingsPath_;
  std::u16string dataFolder_;
  // A file that could not be loaded is put aside before it is overwritten.
  platform::OldContent unreadFile_ = platform::OldContent::Drop;
  bool isDialogOpen_ = false;  // it edits the working copy
  bool isLoadTold_ = true;     // the player has seen what the last load could not use
  HotkeyConfig config_;
  HotkeyConfig workingCopy_;  // what the dialog and a returned block change before it is saved
  std::unique_ptr<Dota7KeyInfoManager> dota7_;  // from the first dialog on
};

}  // namespace brennet
