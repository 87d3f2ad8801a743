#pragma once

#include "brennet/HotkeyBlock.h"
#include "model/HotkeyConfig.h"

namespace brennet {

// Fills the whole `block`, its size included, with the bindings of the current scheme and marks
// `config` as built into a block. A field without a key is 0. Phrases that do not fit into their
// area are cut between characters, so that each of the eight keeps its closing NUL. Never fails and
// never allocates.
void fillBlock(HotkeyConfig& config, HotkeyBlock& block);

}  // namespace brennet
