// A member call as MSVC makes it: the object in ecx, the arguments on the stack, removed by the
// function that is called.
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
  unsigned flags;
  unsigned x87Control;
  unsigned sseControl;  // the lowest six bits are the exceptions that occurred
  unsigned hostX87Control;
  unsigned hostSseControl;
};

// What the saved registers hold when the call is made.
constexpr unsigned kEbx = 0xB0B1B2B3;
constexpr unsigned kEsi = 0x51525354;
constexpr unsigned kEdi = 0xD0D1D2D3;
constexpr unsigned kEbp = 0xE0E1E2E3;

// The floating-point control words when the call is made: double precision, as with MSVC, and tiny
// results become zeros. Code that sets the GNU defaults instead is caught.
constexpr unsigned kX87Control = 0x027F;
constexpr unsigned kSseControl = 0x9F80;
constexpr unsigned kSseControlBits = 0xFFC0;

// If it is not set, strings are copied upwards.
constexpr unsigned kDirectionFlag = 0x400;

// Makes the call and records the result, the stack pointer before the arguments and after the call,
// and the saved registers, the flags and the two control words after the call. Then it restores our
// own, whatever the function did to them.
extern "C" void __cdecl makeMemberCall(MemberCall* call);
