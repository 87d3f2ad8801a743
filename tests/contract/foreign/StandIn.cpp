// Takes the place of the library, to see the foreign host refuse it. It passes each call on to the
// library in the folder above, except for one fault: the environment names a row of kFaults.

#include "Kernel32.h"
#include "Record.h"
#include "Slots.h"

namespace {

using Word = unsigned;  // an argument or a result
using Function = void (*)();
using Path = wchar_t[1024];

constexpr unsigned kSlots = 12;

// The object of the library, which begins with the address of its table of functions.
struct Object {
  const Function* slots;
};
Module library = nullptr;
Object* real = nullptr;

template <class... Words>
Word pass(Slot slot, Words... words) {
  using Body = Word(__thiscall*)(Object*, Words...);
  return reinterpret_cast<Body>(real->slots[slot])(real, words...);
}

// A function of the table. The object comes in ecx, which is the first argument of __fastcall; the
// second one, edx, means nothing here.
template <Slot slot, class... Words>
Word __fastcall forward(void*, void*, Words... words) {
  return pass(slot, words...);
}

template <class Body>
Function entry(Body* body) {
  return reinterpret_cast<Function>(body);
}

// Calls that leave behind what they should not. Each returns the default.
// clang-format off
__declspec(naked) void takesOneArgument() { __asm {
  xor eax, eax
  ret 4
} }
__declspec(naked) void losesEbx() { __asm {
  xor ebx, ebx
  xor eax, eax
  ret
} }
__declspec(naked) void losesEsi() { __asm {
  xor esi, esi
  xor eax, eax
  ret
} }
__declspec(naked) void losesEdi() { __asm {
  xor edi, edi
  xor eax, eax
  ret
} }
__declspec(naked) void losesEbp() { __asm {
  xor ebp, ebp
  xor eax, eax
  ret
} }
__declspec(naked) void needsAlignment() { __asm {
  movaps xmm0, [esp + 4]
  xor eax, eax
  ret
} }
__declspec(naked) void setsX87Control() { __asm {
  push 0x037F
  fldcw word ptr [esp]
  pop eax
  xor eax, eax
  ret
} }
__declspec(naked) void setsSseControl() { __asm {
  push 0x1F80
  ldmxcsr dword ptr [esp]
  pop eax
  xor eax, eax
  ret
} }
__declspec(naked) void setsDirection() { __asm {
  std
  xor eax, eax
  ret
} }
// clang-format on

template <Word result>
Word __fastcall gives(void*, void*) {
  return result;
}

Word __fastcall loadsNothing(void*, void*, const wchar_t*) {
  return 0;
}

unsigned announced(const unsigned char* record) {
  unsigned size = 0;
  for (unsigned i = 0; i < 4; ++i) size |= static_cast<unsigned>(record[i]) << 8 * i;
  return size;
}

Word __fastcall fillsWholeRecordsOnly(void*, void*, unsigned char* record) {
  return announced(record) == kRecordSize ? pass(kFillHotkeyBlock, record) : 0;
}
Word __fastcall forgetsAField(void*, void*, unsigned char* record) {
  const Word result = pass(kFillHotkeyBlock, record);
  if (announced(record) >= kRecordSize) record[kHideUI] = 0;
  return result;
}
template <unsigned offset>
Word __fastcall clearsAByteOfLargerOnes(void*, void*, unsigned char* record) {
  const Word result = pass(kFillHotkeyBlock, record);
  if (announced(record) > kRecordSize) record[offset] = 0;
  return result;
}
Word __fastcall fillsAnything(void*, void*, unsigned char* record) {
  pass(kFillHotkeyBlock, record);
  return 1;
}

Word lastSwitch = 0;
Word __fastcall switchesAgain(void*, void*, Word enable, Word saveTime) {
  pass(kSetEnabled, enable, saveTime);
  return 1;
}
Word __fastcall doesNotSwitch(void*, void*, Word, Word) {
  return 0;
}
Word __fastcall notesTheSwitch(void*, void*, Word enable, Word saveTime) {
  lastSwitch = saveTime;
  return pass(kSetEnabled, enable, saveTime);
}
Word __fastcall lastSwitchOrLoad(void*, void*) {
  return lastSwitch != 0 ? lastSwitch : pass(kGetLastSaveTime);
}

Word firstSaveTime = 0;
Word __fastcall keepsTheFirstTime(void*, void*) {
  if (firstSaveTime == 0) firstSaveTime = pass(kGetLastSaveTime);
  return firstSaveTime;
}

constexpr Word kNotTaken = 0xFFFFFFFF;
template <Word from, Word to>
Word __fastcall applies(void*, void*, unsigned char* record, Word saveTime) {
  const Word result = pass(kApplyHotkeyBlock, record, saveTime);
  return result == from ? to : result;
}
Word __fastcall takesNoRecordForUnchanged(void*, void*, unsigned char* record, Word saveTime) {
  return record == nullptr ? kNotTaken : pass(kApplyHotkeyBlock, record, saveTime);
}

// The functions that take the place of the library's. A fault may have several rows.
struct Fault {
  const wchar_t* name;
  Slot slot;
  Function function;
};
const Fault kFaults[] = {
    {L"stack", kIsCapsLockUsed, takesOneArgument},
    {L"ebx", kIsCapsLockUsed, losesEbx},
    {L"esi", kIsCapsLockUsed, losesEsi},
    {L"edi", kIsCapsLockUsed, losesEdi},
    {L"ebp", kIsCapsLockUsed, losesEbp},
    {L"alignment", kIsCapsLockUsed, needsAlignment},
    {L"bool_byte", kIsCapsLockUsed, entry(gives<2>)},
    {L"x87_control", kIsCapsLockUsed, setsX87Control},
    {L"sse_control", kIsCapsLockUsed, setsSseControl},
    {L"direction", kIsCapsLockUsed, setsDirection},
    {L"default", kIsCapsLockUsed, entry(gives<1>)},
    {L"load", kLoadSettings, entry(loadsNothing)},
    {L"getter", kGetViewNoDragFlag, entry(gives<0>)},
    {L"filling", kFillHotkeyBlock, entry(fillsWholeRecordsOnly)},
    {L"field", kFillHotkeyBlock, entry(forgetsAField)},
    {L"size", kFillHotkeyBlock, entry(clearsAByteOfLargerOnes<kSize>)},
    {L"tail", kFillHotkeyBlock, entry(clearsAByteOfLargerOnes<kRecordSize>)},
    {L"switched_twice", kSetEnabled, entry(switchesAgain)},
    {L"switching", kSetEnabled, entry(doesNotSwitch)},
    {L"save_time", kSetEnabled, entry(notesTheSwitch)},
    {L"save_time", kGetLastSaveTime, entry(lastSwitchOrLoad)},
    {L"unchanged", kApplyHotkeyBlock, entry(applies<kNotTaken, 0>)},
    {L"applying", kApplyHotkeyBlock, entry(applies<0, kNotTaken>)},
    {L"keeping", kGetLastSaveTime, entry(keepsTheFirstTime)},
    {L"bad_filled", kFillHotkeyBlock, entry(fillsAnything)},
    {L"bad_applied", kApplyHotkeyBlock, entry(takesNoRecordForUnchanged)},
};

Function slots[kSlots] = {
    entry(forward<kLoadSettings, Word>),
    entry(forward<kSetDataFolder, Word>),
    entry(forward<kShowSettingsDialog, Word, Word>),
    entry(forward<kFillHotkeyBlock, Word>),
    entry(forward<kGetDisableLWinFlag>),
    entry(forward<kGetLastSaveTime>),
    entry(forward<kSetEnabled, Word, Word>),
    entry(forward<kGetViewNoDragFlag>),
    entry(forward<kIsCapsLockUsed>),
    entry(forward<kIsShiftUsed>),
    entry(forward<kApplyHotkeyBlock, Word, Word>),
    entry(forward<kGetStartJSQFlag>),
};
const Object kObjects[] = {{slots}, {slots}};

bool isSame(const wchar_t* a, const wchar_t* b) {
  for (; *a != L'\0' && *a == *b; ++a) ++b;
  return *a == *b;
}

// Whether the environment names this fault.
bool isBroken(const wchar_t* fault) {
  Path name = {};
  GetEnvironmentVariableW(L"BRENNET_STAND_IN_FAULT", name, sizeof(name) / sizeof(*name));
  return isSame(name, fault);
}

// Cuts a path behind the last separator before `end`, and returns the new length.
unsigned cutName(wchar_t* path, unsigned end) {
  while (end != 0 && path[end - 1] != L'\\') --end;
  path[end] = L'\0';
  return end;
}

// Loads the library in the folder above that of the program.
Module loadLibrary() {
  Path path = {};
  unsigned end = GetModuleFileNameW(nullptr, path, sizeof(path) / sizeof(*path));
  end = cutName(path, end);
  end = cutName(path, end - 1);
  for (const wchar_t* name = L"Brennet.dll"; *name != L'\0'; ++name) path[end++] = *name;
  path[end] = L'\0';
  return LoadLibraryExW(path, nullptr, kLoadWithAlteredSearchPath);
}

bool start() {
  library = loadLibrary();
  if (library == nullptr) return false;
  using Factory = Object* (*)();
  real = reinterpret_cast<Factory>(GetProcAddress(library, "GetBrennetPtr"))();
  for (const Fault& fault : kFaults) {
    if (isBroken(fault.name)) slots[fault.slot] = fault.function;
  }
  if (isBroken(L"unloading")) LoadLibraryW(L"Brennet.dll");
  return true;
}

}  // namespace

extern "C" __declspec(dllexport) const void* GetBrennetPtr() {
  if (library == nullptr && !start()) return nullptr;
  static unsigned calls = 0;
  const bool isOther = calls++ % 2 != 0 && isBroken(L"object");
  return &kObjects[isOther ? 1 : 0];
}

extern "C" int __stdcall DllMain(Module, unsigned reason, void* processEnds) {
  constexpr unsigned kDetach = 0;
  if (reason == kDetach && processEnds == nullptr && library != nullptr) FreeLibrary(library);
  return 1;
}
