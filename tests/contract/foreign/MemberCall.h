// A member call as MSVC makes one: the object in ecx, the arguments on the stack, taken off by the
// one that is called.
#pragma once

// What goes into a call and what was found after it. MemberCall.cpp knows the offsets.
struct MemberCall {
  void* function;
  void* object;
  const unsigned* arguments;
  unsigned count;
  unsigned alignment;  // of the stack, modulo 16: 0, 4, 8 or 12
  unsigned eax;
  unsigned stackBefore;
  unsigned stackAfter;
  unsigned ebx;
  unsigned esi;
  unsigned edi;
  unsigned ebp;
  unsigned hostStack;
};

// What the saved registers hold when the call is made.
constexpr unsigned kEbx = 0xB0B1B2B3;
constexpr unsigned kEsi = 0x51525354;
constexpr unsigned kEdi = 0xD0D1D2D3;
constexpr unsigned kEbp = 0xE0E1E2E3;

// Makes the call and notes the result, the stack pointer before the arguments and after the call,
// and the saved registers after the call. Our own are put back whatever the function did to them.
extern "C" void __cdecl makeMemberCall(MemberCall* call);
