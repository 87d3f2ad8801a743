// The library's table of functions, as a host built by another compiler would write it down.
#pragma once

// The places in the table, with the arguments and the result of each function. A bool or a byte is
// returned in al; the rest of eax means nothing.
enum Slot : unsigned {
  kLoadSettings = 0,        // bool (const wchar_t* path)
  kSetDataFolder = 1,       // void (const wchar_t* folder)
  kShowSettingsDialog = 2,  // bool (bool* saved, unsigned saveTime)
  kFillHotkeyBlock = 3,     // bool (record)
  kGetDisableLWinFlag = 4,  // byte ()
  kGetLastSaveTime = 5,     // unsigned ()
  kSetEnabled = 6,          // bool (bool enable, unsigned saveTime)
  kGetViewNoDragFlag = 7,   // byte ()
  kIsCapsLockUsed = 8,      // bool ()
  kIsShiftUsed = 9,         // bool ()
  kApplyHotkeyBlock = 10,   // int (record, unsigned saveTime)
  kGetStartJSQFlag = 11,    // byte ()
};
