// The library as a host of another compiler sees it: a module, one exported function, and an object
// with a table of twelve functions.
#pragma once

#include "Kernel32.h"
#include "Slots.h"

// A bool argument is a byte as well: compilers leave anything in the bits above it.
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

  // Calls a function and returns the whole of eax.
  template <class... Arguments>
  unsigned call(Slot slot, Arguments... arguments) const {
    const unsigned words[] = {pass(arguments)..., 0};
    return callSlot(slot, words, sizeof...(arguments));
  }
  // Calls a function and returns the byte in al, which has to be 0 or 1.
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
