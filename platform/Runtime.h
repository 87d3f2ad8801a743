#pragma once

#include "platform/Paths.h"

namespace brennet::platform {

// Keeps the libraries that this one shares with its host in the process when this one is unloaded.
// They have memory, handles and thread-local storage of their own; a host that loads and unloads
// this library time and again would leak those of each copy.
void keepSharedLibraries();

// The file of the program or library that has this function or variable; empty if none has.
[[nodiscard]] Path fileOfCode(const void* address);

// Whether this library may unload another one while it is unloaded itself. Not so when the process
// ends, which some systems do in no order.
[[nodiscard]] bool mayUnloadOthers();

// Has a debugger that is attached show the text, where debuggers listen to that.
void tellDebugger(const char* text);

}  // namespace brennet::platform
