#pragma once

namespace brennet::platform {

// Keeps the libraries that this one shares with its host in the process when this one is unloaded.
// They have memory, handles and thread-local storage of their own; a host that loads and unloads
// this library time and again would leak those of each copy.
void keepSharedLibraries();

}  // namespace brennet::platform
