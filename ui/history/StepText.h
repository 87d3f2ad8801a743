#pragma once

#include <QString>

#include "ui/history/EditStep.h"

namespace brennet {

// What a step changed, in the player's language: its title if it has one, then a line for each of
// the first changes ("Hero skill 1: Q → W"), then how many more there are. Empty if it changed
// nothing that a player can see.
[[nodiscard]] QString stepText(const EditStep& step);

// Whether a player can see that anything has changed.
[[nodiscard]] bool isVisible(const EditStep& step);

}  // namespace brennet
