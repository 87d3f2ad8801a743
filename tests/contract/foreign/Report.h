// Prints on standard output what is wrong, and ends the process.
#pragma once

#include "Failures.h"

constexpr unsigned kNoSlot = ~0U;

// Where the program is; printed with each failure, crashes included.
struct Place {
  unsigned slot;       // of the call that was made last
  unsigned alignment;  // of its stack, modulo 16
};
extern Place place;

void print(const char* text);
void print(unsigned number);

// Prints what is wrong and where, and ends the process with the failure's code.
[[noreturn]] void fail(Failure failure);

inline void require(bool holds, Failure failure) {
  if (!holds) fail(failure);
}

// From here on a crash is a failure like others.
void reportCrashes();

// Ends the process with `kNotWine` unless it runs under Wine. Has the library take a folder that
// does not exist for the player's profile.
void keepAwayFromThePlayersFiles();
