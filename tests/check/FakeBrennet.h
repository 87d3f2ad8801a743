#pragma once

#include <brennet/IBrennet.h>

#include <functional>
#include <string>

namespace brennet::test {

// A library that notes what it is asked, and answers something else in each slot.
class FakeBrennet final : public IBrennet {
 public:
  bool BRENNET_CALL LoadSettings(const wchar_t* path) override {
    note("LoadSettings", path);
    during();
    return true;
  }
  void BRENNET_CALL SetDataFolder(const wchar_t* folder) override { note("SetDataFolder", folder); }
  bool BRENNET_CALL ShowSettingsDialog(bool* saved, std::uint32_t saveTime) override {
    note("ShowSettingsDialog", saved, saveTime);
    during();
    return true;
  }
  bool BRENNET_CALL FillHotkeyBlock(HotkeyBlock* block) override {
    note("FillHotkeyBlock", block);
    return block != nullptr;
  }
  std::uint8_t BRENNET_CALL GetDisableLWinFlag() override { return 4; }
  std::uint32_t BRENNET_CALL GetLastSaveTime() override { return 0x55555555; }
  bool BRENNET_CALL SetEnabled(bool enable, std::uint32_t saveTime) override {
    note("SetEnabled", enable ? this : nullptr, saveTime);
    return true;
  }
  std::uint8_t BRENNET_CALL GetViewNoDragFlag() override { return 7; }
  bool BRENNET_CALL IsCapsLockUsed() override { return true; }
  bool BRENNET_CALL IsShiftUsed() override { return false; }
  std::int32_t BRENNET_CALL ApplyHotkeyBlock(HotkeyBlock* block, std::uint32_t saveTime) override {
    note("ApplyHotkeyBlock", block, saveTime);
    return -1;
  }
  std::uint8_t BRENNET_CALL GetStartJSQFlag() override { return 11; }

  // Runs inside LoadSettings and ShowSettingsDialog.
  std::function<void()> during = [] {};

  // The last call that had arguments.
  std::string operation;
  const void* pointer = nullptr;
  std::uint32_t number = 0;

 private:
  void note(const char* name, const void* passed, std::uint32_t saveTime = 0) {
    operation = name;
    pointer = passed;
    number = saveTime;
  }
};

}  // namespace brennet::test
