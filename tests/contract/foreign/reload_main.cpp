// foreign-reload.exe loads, uses and unloads the library a hundred times in one process, and looks
// at what that leaves behind. It ends with 0 or with one of the codes of Failures.h.
//
// To check the check: with the arguments "leaks handles", "leaks indexes", "leaks blocks" or "leaks
// pages", the program does not load the library but leaves one of those behind in each round.

#include "Footprint.h"
#include "Kernel32.h"
#include "Report.h"
#include "Scenario.h"

namespace {

// After these, everything exists that is made only once, on a first load.
constexpr unsigned kWarmUp = 10;
constexpr unsigned kRounds = 90;

// What grows in fewer than one of ten rounds is not caused by loads: a load that leaves a single
// handle, index, block or page behind adds kRounds of them.
constexpr unsigned kBound = kRounds / 10;

// Whenever a heap grows, it grows by this many pages.
constexpr unsigned kHeapGrowth = 16;

void useLibrary() {
  const SettingsFile settings(kSettings);
  Library library;
  checkDefaults(library);
  checkLoad(library, settings);
  checkSwitch(library);
  library.unload();
}

void leakHandle() {
  CreateEventW(nullptr, 0, 0, nullptr);
}
void leakIndex() {
  TlsAlloc();
}
void leakBlock() {
  HeapAlloc(GetProcessHeap(), 0, 1);
}
void leakPage() {
  VirtualAlloc(nullptr, 1, kMemReserve | kMemCommit, kPageReadWrite);
}

bool endsWith(const wchar_t* text, const wchar_t* end) {
  unsigned size = 0;
  unsigned endSize = 0;
  while (text[size] != L'\0') ++size;
  while (end[endSize] != L'\0') ++endSize;
  if (endSize > size) return false;
  for (unsigned i = 0; i < endSize; ++i) {
    if (text[size - endSize + i] != end[i]) return false;
  }
  return true;
}

using Round = void (*)();

Round roundOf(const wchar_t* commandLine) {
  struct Choice {
    const wchar_t* words;
    Round round;
  };
  constexpr Choice kChoices[] = {
      {L"leaks handles", leakHandle},
      {L"leaks indexes", leakIndex},
      {L"leaks blocks", leakBlock},
      {L"leaks pages", leakPage},
  };
  for (const Choice& choice : kChoices) {
    if (endsWith(commandLine, choice.words)) return choice.round;
  }
  return useLibrary;
}

void tell(const char* title, const Footprint& footprint) {
  print(title);
  print(footprint.handles);
  print(" handles, ");
  print(footprint.tlsIndexes);
  print(" indexes, ");
  print(footprint.heapBlocks);
  print(" blocks, ");
  print(footprint.pages);
  print(" pages\n");
}

}  // namespace

extern "C" [[noreturn]] void start() {
  reportCrashes();
  keepAwayFromThePlayersFiles();
  const Round round = roundOf(GetCommandLineW());
  for (unsigned i = 0; i < kWarmUp; ++i) round();
  const Footprint before = footprint();
  for (unsigned i = 0; i < kRounds; ++i) round();
  const Footprint after = footprint();
  tell("before: ", before);
  tell("after: ", after);
  place.slot = kNoSlot;
  require(after.handles < before.handles + kBound, kHandlesGrow);
  require(after.tlsIndexes < before.tlsIndexes + kBound, kTlsGrows);
  require(after.heapBlocks < before.heapBlocks + kBound, kHeapsGrow);
  require(after.pages < before.pages + kHeapGrowth + kBound, kMemoryGrows);
  print("nothing is left behind\n");
  ExitProcess(0);
}
