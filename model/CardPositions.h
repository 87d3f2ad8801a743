#pragma once

#include <array>
#include <cstdint>

#include "model/HotkeyScheme.h"

namespace brennet {

// A place on the game's command card or in its inventory, counted from the top left.
struct CardPosition {
  std::int32_t row;
  std::int32_t column;
};

// Where the hero skills are on the command card, three rows of four: the first four are in its
// bottom row, which holds the skills that a hero learns.
inline constexpr std::array<CardPosition, kHeroSkills> kCommandCard = {{
    {2, 0},
    {2, 1},
    {2, 2},
    {2, 3},
    {1, 1},
    {1, 2},
    {1, 3},
    {1, 0},
    {0, 0},
    {0, 1},
    {0, 2},
    {0, 3},
}};

// Where the item slots are in the inventory, three rows of two.
inline constexpr std::array<CardPosition, kItemSlots> kInventory = {{
    {0, 0},
    {0, 1},
    {1, 0},
    {1, 1},
    {2, 0},
    {2, 1},
}};

}  // namespace brennet
