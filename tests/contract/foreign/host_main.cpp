// A host of another make: it uses the library as a client that was compiled with MSVC does, and
// ends with 0 or with one of the codes of Failures.h.

#include "Kernel32.h"
#include "Report.h"
#include "Scenario.h"

namespace {

// The library is loaded anew while something else lies where it was, and starts from its defaults.
void checkAnotherLoad(Module before) {
  const Address taken = VirtualAlloc(before, kPageSize, kMemReserve, kPageNoAccess);
  require(taken == before, kSamePlace);
  Library library;
  require(library.module() != before, kSamePlace);
  checkDefaults(library);
  library.unload();
  VirtualFree(taken, 0, kMemRelease);
}

// Compilers for Windows align the stack to 4 bytes only.
constexpr unsigned kAlignments[] = {0, 4, 8, 12};

// Whether calls can be made at all comes first.
void checkConvention() {
  Library library;
  for (const unsigned alignment : kAlignments) {
    place.alignment = alignment;
    checkDefaults(library);
  }
  library.unload();
}

void run() {
  const SettingsFile settings(kSettings);
  Library library;
  checkDefaults(library);
  checkRefusals(library);
  checkEachGetter(library);
  checkLoad(library, settings);
  checkAnnouncedSizes(library);
  checkSwitch(library);
  checkApply(library, settings);
  checkBadMemory(library, settings);
  library.unload();
  checkAnotherLoad(library.module());
}

}  // namespace

extern "C" [[noreturn]] void start() {
  reportCrashes();
  keepAwayFromThePlayersFiles();
  checkConvention();
  for (const unsigned alignment : kAlignments) {
    place.alignment = alignment;
    run();
  }
  print("all is well\n");
  ExitProcess(0);
}
