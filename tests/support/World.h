#pragma once

namespace brennet::test {

// Leaves the caller's environment behind, so that a test finds the same world, whoever runs it and
// wherever: English texts in UTF-8, Greenwich time, a home folder that does not exist
// (ScopedProfile makes one), and for temporary files a new folder in /tmp (or in the one that
// BRENNET_TEST_TMPDIR names), because what other programs keep there changes what a save has to do.
// Variables meant for tests stay: BRENNET_TEST_*, BRENNET_UPDATE_GOLDEN, and those of GoogleTest
// and the sanitizers. tests/support/world.sh does the same for scripts, which use /tmp itself.
//
// Under Windows, only variables for Qt, language, time and folders go; the others are the system's.
//
// The mains of all test programs call it before anything else: no other thread may run yet.
void leaveTheCallersWorld();

}  // namespace brennet::test
