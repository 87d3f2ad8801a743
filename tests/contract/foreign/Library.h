// The library as a host of another compiler sees it: a module, one exported function, and an object
// with a table of twelve functions.
#pragma once

#include "Kernel32.h"

// The places in the table, with the arguments and the result of each function. A bool and a byte
// come back in al; the rest of eax means nothing.
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

// A bool on its way in is a byte, too: compilers leave what they like above it.
constexpr unsigned kFalse = 0xCCCCCC00;
constexpr unsigned kTrue = 0xCCCCCC01;

inline unsigned pass(unsigned value) {
  return value;
}
inline unsigned pass(const void* address) {
  return reinterpret_cast<unsigned>(address);
}

class Library {
 public:
  // Brennet.dll, from the folder of the program or of the module search path.
  Library();

  // Unloads the library, which has to be gone then.
  void unload();

  // The address at which the library was loaded.
  [[nodiscard]] Module module() const { return module_; }

  // The whole of eax.
  template <class... Arguments>
  unsigned call(Slot slot, Arguments... arguments) const {
    const unsigned words[] = {pass(arguments)..., 0};
    return callSlot(slot, words, sizeof...(arguments));
  }
  // The byte in al, which has to be 0 or 1.
  template <class... Arguments>
  bool callForBool(Slot slot, Arguments... arguments) const {
    return checkedBool(call(slot, arguments...));
  }

 private:
  unsigned callSlot(Slot slot, const unsigned* arguments, unsigned count) const;
  static bool checkedBool(unsigned eax);

  Module module_;
  void** object_ = nullptr;
};
