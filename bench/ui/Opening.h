#pragma once

namespace brennet {
class Dota7KeyInfoManager;
class HotkeyConfig;
}  // namespace brennet

namespace brennet::bench {

// What the measured dialogs show: two schemes full of keys, and no registry.
HotkeyConfig& settings();
Dota7KeyInfoManager& manager();

// Until everything that was posted is done and what is shown is painted.
void paint();

// Opens the dialog twice, as a process does that was just started, and prints the seconds that each
// took, one a line. For OpenAgainBench.cpp, which starts such processes.
void openTwice();

// The argument that has the benchmark program do that instead of measuring.
inline constexpr char kOpenTwice[] = "--open-twice";

}  // namespace brennet::bench
