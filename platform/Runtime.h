#pragma once

namespace brennet::platform {

// Keeps the libraries that this one shares with its host in the process when this one is unloaded.
// They have memory, handles and thread-local storage of their own, which a host that loads and
// unloads this library time and again would lose to each of their copies.
void keepSharedLibraries();

}  // namespace brennet::platform
