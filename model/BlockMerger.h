#pragma once

#include "brennet/HotkeyBlock.h"
#include "model/HotkeyConfig.h"

namespace brennet {

// Takes into `config` what differs between `current`, the block filled from it, and `returned`, the
// block as the game changed it. The first `carried` bytes of `returned` are the game's; the rest
// equals `current` and says nothing. Keys are offered to the checked setters of the current scheme;
// a refused one becomes no key. The item preset stays: changed item keys go into the item-key map.
// Returns whether any field differed, whatever became of its value.
bool mergeBlock(const HotkeyBlock& current, const HotkeyBlock& returned, std::size_t carried,
                HotkeyConfig& config);

}  // namespace brennet
