#pragma once

namespace brennet::test {

// Leaves the caller's environment behind, so that a test finds the same world whoever runs it and
// wherever: English texts in UTF-8, the time of Greenwich, a home folder that is not there
// (ScopedProfile makes one), and for temporary files a new folder in /tmp (or in the one that
// BRENNET_TEST_TMPDIR names): what other programs keep there changes what a save has to do.
// What is meant for tests stays: BRENNET_TEST_*, BRENNET_UPDATE_GOLDEN, and what GoogleTest and the
// sanitizers read. tests/support/world.sh does the same for scripts, which have /tmp itself.
//
// Under Windows only what is of the caller's Qt, language, time and folders goes; the rest is the
// system's own.
//
// The mains of all test programs call it before anything else: no other thread may run yet.
void leaveTheCallersWorld();

}  // namespace brennet::test
