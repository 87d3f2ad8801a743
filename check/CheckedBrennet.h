#pragma once

#include <brennet/IBrennet.h>

namespace brennet::check {

// The object that the host gets. It passes each call on to the library that is checked, with what
// the session (Session.h) finds to say of it. It has no data of its own: a host may call it on
// anything.
class CheckedBrennet final : public IBrennet {
 public:
  bool BRENNET_CALL LoadSettings(const wchar_t* path) override;
  void BRENNET_CALL SetDataFolder(const wchar_t* folder) override;
  bool BRENNET_CALL ShowSettingsDialog(bool* saved, std::uint32_t saveTime) override;
  bool BRENNET_CALL FillHotkeyBlock(HotkeyBlock* block) override;
  std::uint8_t BRENNET_CALL GetDisableLWinFlag() override;
  std::uint32_t BRENNET_CALL GetLastSaveTime() override;
  bool BRENNET_CALL SetEnabled(bool enable, std::uint32_t saveTime) override;
  std::uint8_t BRENNET_CALL GetViewNoDragFlag() override;
  bool BRENNET_CALL IsCapsLockUsed() override;
  bool BRENNET_CALL IsShiftUsed() override;
  std::int32_t BRENNET_CALL ApplyHotkeyBlock(HotkeyBlock* block, std::uint32_t saveTime) override;
  std::uint8_t BRENNET_CALL GetStartJSQFlag() override;
};

}  // namespace brennet::check
