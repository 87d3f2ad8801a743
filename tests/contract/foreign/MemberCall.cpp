#include "MemberCall.h"

static_assert(sizeof(MemberCall) == 72, "the assembler below counts in these offsets");

// In memory, because neither registers nor the stack can be relied on after the call.
extern "C" MemberCall* callUnderWay = nullptr;

// The assembler code loads them from memory.
extern "C" constexpr unsigned short givenX87Control = kX87Control;
extern "C" constexpr unsigned givenSseControl = kSseControl;

// clang-format off
extern "C" __declspec(naked) void __cdecl makeMemberCall(MemberCall*) {
  __asm {
    push ebp
    push ebx
    push esi
    push edi
    mov eax, [esp + 20]          // the call; above it the four registers and our return address
    mov callUnderWay, eax
    mov [eax + 48], esp          // hostStack

    mov ecx, [eax + 12]          // count
    lea edx, [ecx * 4]
    sub esp, edx
    and esp, 0xFFFFFFF0
    sub esp, 16
    add esp, [eax + 16]          // alignment
    add edx, esp
    mov [eax + 24], edx          // stackBefore

    mov esi, [eax + 8]           // arguments
    mov edi, esp
    cld
    rep movsd

    fnstcw word ptr [eax + 64]   // hostX87Control
    stmxcsr dword ptr [eax + 68] // hostSseControl
    fldcw givenX87Control
    ldmxcsr givenSseControl
    mov ecx, [eax + 4]           // object
    mov ebx, 0xB0B1B2B3
    mov esi, 0x51525354
    mov edi, 0xD0D1D2D3
    mov ebp, 0xE0E1E2E3
    call dword ptr [eax]

    mov ecx, callUnderWay
    mov [ecx + 20], eax
    mov [ecx + 28], esp          // stackAfter
    mov [ecx + 32], ebx
    mov [ecx + 36], esi
    mov [ecx + 40], edi
    mov [ecx + 44], ebp
    pushfd
    pop dword ptr [ecx + 52]     // flags
    cld
    fnstcw word ptr [ecx + 56]   // x87Control
    stmxcsr dword ptr [ecx + 60] // sseControl
    fldcw word ptr [ecx + 64]
    ldmxcsr dword ptr [ecx + 68]

    mov esp, [ecx + 48]
    pop edi
    pop esi
    pop ebx
    pop ebp
    ret
  }
}
// clang-format on
