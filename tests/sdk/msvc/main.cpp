// A host with Microsoft's C++ ABI and without a C library: it links the import library, loads
// KeyInfo.xml from the working folder and prints the outcome. The exit status is 0, or the number
// of the step that failed.

#include <brennet/HotkeyBlock.h>
#include <brennet/IBrennet.h>

extern "C" {
__declspec(dllimport) void* __stdcall GetStdHandle(unsigned long which);
__declspec(dllimport) int __stdcall WriteFile(void* file, const void* bytes, unsigned long size,
                                              unsigned long* written, void* overlapped);
__declspec(dllimport) void __stdcall ExitProcess(unsigned int status);

brennet::IBrennet* GetBrennetPtr();
}

namespace {

brennet::HotkeyBlock block;

void say(const char* text) {
  constexpr unsigned long kStandardOutput = static_cast<unsigned long>(-11);
  unsigned long size = 0;
  while (text[size] != 0) ++size;
  WriteFile(GetStdHandle(kStandardOutput), text, size, &size, nullptr);
}

// Slot 5 without the header: the object's first word points to the table of functions, and the
// calling convention is __thiscall, whatever the header says.
unsigned long rawSaveTime(void* object) {
  using Slot = unsigned long(__thiscall*)(void*);
  constexpr int kGetLastSaveTime = 5;
  return (*static_cast<Slot**>(object))[kGetLastSaveTime](object);
}

// Calls slots with and without arguments and with every kind of result, from the first to the last.
unsigned int use(brennet::IBrennet& brennet) {
  brennet.SetDataFolder(L".");
  if (!brennet.LoadSettings(L"KeyInfo.xml")) return 1;
  if (brennet.GetLastSaveTime() != 1404738022U || rawSaveTime(&brennet) != 1404738022U) return 2;
  if (brennet.ShowSettingsDialog(nullptr, 1)) return 3;
  block.size = sizeof(block);
  if (!brennet.FillHotkeyBlock(&block) || block.size != sizeof(block)) return 4;
  if (brennet.ApplyHotkeyBlock(&block, 7) != -1) return 5;
  block.zoomValue = 90;
  if (brennet.ApplyHotkeyBlock(&block, 7) != 0) return 6;
  if (brennet.SetEnabled(true, 8) || !brennet.SetEnabled(false, 8)) return 7;
  if (!brennet.IsCapsLockUsed() || brennet.IsShiftUsed()) return 8;
  return brennet.GetStartJSQFlag() == 1 ? 0 : 9;
}

}  // namespace

// The system calls it without the stack alignment that the compiler relies on.
extern "C" __attribute__((force_align_arg_pointer)) void start() {
  const unsigned int status = use(*GetBrennetPtr());
  say(status == 0 ? "all slots answered\n" : "a slot failed\n");
  ExitProcess(status);
}
