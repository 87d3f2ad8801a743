// A foreign host: it uses the library as a client compiled with MSVC would, and ends with 0 or with
// one of the codes of Failures.h.

#include "Kernel32.h"
#include "Report.h"
#include "Scenario.h"

namespace {

// A library that is loaded again, at another place because its old one is taken, starts from its
// defaults.
void checkAnotherLoad(Module before) {
  const Address taken = VirtualAlloc(before, kPageSize, kMemReserve, kPageNoAccess);
  require(taken == before, kSamePlace);
  Library library;
  require(library.module() != before, kSamePlace);
  checkDefaults(library);
  library.unload();
  VirtualFree(taken, 0, kMemRelease);
}

// Compilers for Windows align the stack only to 4 bytes.
constexpr unsigned kAlignments[] = {0, 4, 8, 12};

// Whether calls work at all is checked first.
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
