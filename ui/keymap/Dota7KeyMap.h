#pragma once

#include "ui/keymap/KeyMap.h"

namespace brennet {

class Dota7Settings;

// What the keys of the DotA 7 pages do, in the cast mode that is chosen there. Throws
// std::bad_alloc.
[[nodiscard]] KeyMap keyMapOf(const Dota7Settings& settings);

}  // namespace brennet
