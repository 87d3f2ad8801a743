// Takes the place of the library, to see the foreign host refuse it. Its object keeps to the
// calling convention and answers with the defaults, but loads nothing. STAND_IN_BREAKS names the
// one thing that is wrong with it.

#include "Kernel32.h"

#define NOTHING 0
#define STACK 1
#define EBX 2
#define ESI 3
#define EDI 4
#define EBP 5
#define ALIGNMENT 6
#define BOOL_BYTE 7
#define DEFAULT 8
#define OBJECT 9
#define UNLOADING 10
#define X87_CONTROL 11
#define SSE_CONTROL 12
#define DIRECTION 13

// clang-format off
extern "C" {

__declspec(naked) void zero() { __asm {
  xor eax, eax
  ret
} }
__declspec(naked) void zeroOfOne() { __asm {
  xor eax, eax
  ret 4
} }
__declspec(naked) void zeroOfTwo() { __asm {
  xor eax, eax
  ret 8
} }

__declspec(naked) void broken() { __asm {
#if STAND_IN_BREAKS == STACK
  xor eax, eax
  ret 4
#elif STAND_IN_BREAKS == EBX
  xor ebx, ebx
#elif STAND_IN_BREAKS == ESI
  xor esi, esi
#elif STAND_IN_BREAKS == EDI
  xor edi, edi
#elif STAND_IN_BREAKS == EBP
  xor ebp, ebp
#elif STAND_IN_BREAKS == ALIGNMENT
  movaps xmm0, [esp + 4]
#elif STAND_IN_BREAKS == X87_CONTROL
  push 0x037F
  fldcw word ptr [esp]
  pop eax
#elif STAND_IN_BREAKS == SSE_CONTROL
  push 0x1F80
  ldmxcsr dword ptr [esp]
  pop eax
#elif STAND_IN_BREAKS == DIRECTION
  std
#elif STAND_IN_BREAKS == BOOL_BYTE
  mov eax, 2
  ret
#elif STAND_IN_BREAKS == DEFAULT
  mov eax, 1
  ret
#endif
  xor eax, eax
  ret
} }

}  // extern "C"
// clang-format on

namespace {

bool __fastcall fill(void*, void*, unsigned char* record) {
  for (unsigned i = 4; i < 1807; ++i) record[i] = i == 68 ? 100 : 0;
  return true;
}

using Function = void (*)();
const Function kTable[] = {
    zeroOfOne, zeroOfOne, zeroOfTwo, reinterpret_cast<Function>(fill),
    zero,      zero,      zeroOfTwo, zero,
    broken,    zero,      zeroOfTwo, zero,
};
const Function* const kObjects[] = {kTable, kTable};

}  // namespace

extern "C" __declspec(dllexport) const void* GetBrennetPtr() {
#if STAND_IN_BREAKS == OBJECT
  static unsigned calls = 0;
  return &kObjects[calls++ % 2];
#else
#if STAND_IN_BREAKS == UNLOADING
  LoadLibraryW(L"Brennet.dll");
#endif
  return &kObjects[0];
#endif
}

extern "C" int __stdcall DllMain(Module, unsigned, void*) {
  return 1;
}
