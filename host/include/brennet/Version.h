// The version of the Brennet library that these headers belong to.
//
// CONTRACT.md says what a change of each of the three numbers means to hosts.
//
// The library states its own version in its version resource on Windows (GetFileVersionInfo) and in
// its file name elsewhere (libbrennet.so.MAJOR.MINOR.PATCH). A library of the same or a later
// version has every operation that these headers have. Slots 0 to 11 are in every version. A host
// that calls a later one and may meet an older library compares that version with the one in which
// the operation was added, which IBrennet.h states for each.
//
// This header is self-contained and compiles as C++11 and in resource scripts.
#ifndef BRENNET_VERSION_H
#define BRENNET_VERSION_H

#define BRENNET_VERSION_MAJOR 1
#define BRENNET_VERSION_MINOR 0
#define BRENNET_VERSION_PATCH 0

// One number that grows with the version, for the preprocessor: 1.0.0 is 10000, 1.2.3 is 10203.
#define BRENNET_VERSION \
  (BRENNET_VERSION_MAJOR * 10000 + BRENNET_VERSION_MINOR * 100 + BRENNET_VERSION_PATCH)

#endif  // BRENNET_VERSION_H
