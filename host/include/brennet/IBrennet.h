// The interface between a game-platform client (the host) and the Brennet library.
//
// The host loads the library, fetches the exported function GetBrennetPtr by name, and calls it
// once. The object belongs to the library and lives until the library is unloaded: the host never
// deletes it. Everything that crosses the interface is plain memory owned by the caller.
//
// All calls come on the host's GUI thread, the one that runs its QApplication. The order is:
// GetBrennetPtr; SetDataFolder and LoadSettings; then the other operations, in any order and any
// number of times.
//
// This header is self-contained and compiles as C++11. It is the contract; CONTRACT.md gives the
// details.
#ifndef BRENNET_I_BRENNET_H
#define BRENNET_I_BRENNET_H

#include <cstdint>

// The member-call convention of 32-bit Windows, whatever default the host is compiled with.
#if defined(_WIN32) && (defined(_M_IX86) || defined(__i386__))
#define BRENNET_CALL __thiscall
#else
#define BRENNET_CALL
#endif

namespace brennet {

struct HotkeyBlock;  // HotkeyBlock.h

// The operations, in a fixed order. The order of the slots never changes: hosts are compiled
// against it. New operations are only ever appended; Version.h says how a host finds out whether a
// library has them. No destructor and no data belong here. Nothing throws; failures are the stated
// results.
//
// Each slot says in its first sentence what it does or returns, and in brackets on which thread and
// when it may be called, who owns what is passed, and what a failure is. "Any time" is any time
// after GetBrennetPtr, including before the first load and while the dialog is open.
class IBrennet {
 public:
  // Slot 0. Reads the player's settings from the file at `path` (UTF-16; copied) and keeps the
  // path for every later save, even when the load fails. A successful load rewrites the hotkey
  // sections of the game's preference file.
  // Returns false, with the defaults in place, when the file is missing, unreadable or damaged; the
  // quick-chat phrases, quick-cast marks and left-Alt switches of an earlier load stay then. When
  // memory runs out for the path itself, there is no path, and saves fail until the next load.
  // False with nothing changed when `path` is null.
  // [GUI thread; any time; first of all after slot 1]
  // [owns: the host its text, which is copied]
  // [failure: false: the defaults are in place, or, for null, nothing has changed]
  virtual bool BRENNET_CALL LoadSettings(const wchar_t* path) = 0;

  // Slot 1. Stores the folder (copied) that holds Tollamere.reg, with or without a path separator
  // at its end; null stores an empty name.
  // [GUI thread; any time; before slot 2]
  // [owns: the host its text, which is copied]
  // [failure: cannot fail]
  virtual void BRENNET_CALL SetDataFolder(const wchar_t* folder) = 0;

  // Slot 2. Opens the settings dialog, modal over the host's window, on a copy of the settings.
  // When the player confirms, the copy is saved with `saveTime`, `*saved` tells whether that
  // succeeded, and if so the copy becomes the active configuration.
  // Returns whether the player confirmed; false when `saved` is null, without a QApplication, while
  // the dialog is open already, and when memory runs out, as far as Qt survives that.
  // [GUI thread, and holds it until the dialog closes; after slots 0 and 1, with a `QApplication`;
  // not while the dialog is open]
  // [owns: the host the `bool`, which is written]
  // [failure: false; true with `*saved` false when only the save failed]
  virtual bool BRENNET_CALL ShowSettingsDialog(bool* saved, std::uint32_t saveTime) = 0;

  // Slot 3. Fills `block` with the active bindings. The caller writes the number of bytes it
  // provides into `block->size` first: a shorter, older record gets its prefix, a longer one keeps
  // its tail, and `size` itself is left as it was.
  // Returns false when `block` is null or its memory is not known to be writable.
  // [GUI thread; any time; the defaults before slot 0]
  // [owns: the host the record, which is written]
  // [failure: false, nothing is written]
  virtual bool BRENNET_CALL FillHotkeyBlock(HotkeyBlock* block) = 0;

  // Slot 4. 1 when the left Windows key is disabled in game, else 0.
  // [GUI thread; any time]
  // [owns: nothing is passed]
  // [failure: cannot fail]
  virtual std::uint8_t BRENNET_CALL GetDisableLWinFlag() = 0;

  // Slot 5. The save time that the last load found in the file; 0 before any load and after a
  // failed one. Saving does not change it. The library never reads a clock: the value is the
  // host's own.
  // [GUI thread; any time; 0 before slot 0]
  // [owns: nothing is passed]
  // [failure: 0, after a load that failed]
  virtual std::uint32_t BRENNET_CALL GetLastSaveTime() = 0;

  // Slot 6. Switches the whole feature on or off and saves with `saveTime`.
  // Returns false and does nothing when `enable` is already the state; else the save's result. The
  // new state holds in memory even when the save fails.
  // [GUI thread; after slot 0, which gives the path]
  // [owns: nothing but numbers]
  // [failure: false: it was so already, or was not saved]
  virtual bool BRENNET_CALL SetEnabled(bool enable, std::uint32_t saveTime) = 0;

  // Slot 7. 1 when the picture is kept unstretched, else 0.
  // [GUI thread; any time]
  // [owns: nothing is passed]
  // [failure: cannot fail]
  virtual std::uint8_t BRENNET_CALL GetViewNoDragFlag() = 0;

  // Slot 8. Whether the active bindings use Caps Lock.
  // [GUI thread; any time]
  // [owns: nothing is passed]
  // [failure: cannot fail]
  virtual bool BRENNET_CALL IsCapsLockUsed() = 0;

  // Slot 9. Whether the active bindings use Shift as a key of its own.
  // [GUI thread; any time]
  // [owns: nothing is passed]
  // [failure: cannot fail]
  virtual bool BRENNET_CALL IsShiftUsed() = 0;

  // Slot 10. Takes back a block that was changed in game, merges what differs into the settings
  // and saves them with `saveTime`. Reads `block->size` bytes, at most one record.
  // Returns 0 after a successful save, and 0 when `block` is null or any of its `size` bytes is
  // not writable; -1 when nothing differs, the save fails, the settings dialog is open, or it
  // cannot be found out whether the memory is writable.
  // [GUI thread; after slot 0, which gives the path; not while the dialog is open]
  // [owns: the host the record, which is read]
  // [failure: -1, the old settings stay; 0 when the record is null or not writable]
  virtual std::int32_t BRENNET_CALL ApplyHotkeyBlock(HotkeyBlock* block,
                                                     std::uint32_t saveTime) = 0;

  // Slot 11. 1 when delay optimisation is on, else 0.
  // [GUI thread; any time]
  // [owns: nothing is passed]
  // [failure: cannot fail]
  virtual std::uint8_t BRENNET_CALL GetStartJSQFlag() = 0;

 protected:
  ~IBrennet() = default;
};

// The type of the exported function, which returns the same object each time, never null, and
// throws nothing. For GetProcAddress and dlsym:
//   auto get = reinterpret_cast<brennet::GetBrennetPtrFunction>(GetProcAddress(dll,
//   "GetBrennetPtr"));
using GetBrennetPtrFunction = IBrennet* (*)();

}  // namespace brennet

#endif  // BRENNET_I_BRENNET_H
