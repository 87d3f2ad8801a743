#pragma once

#include "Sections.h"

// Where the player's keys take effect outside of the library: the game's preference file, and the
// DotA 7 keys in the registry.
struct GameSide {
  Sections preferences;
  Sections registry;
};

// Reads both as they are now. What is missing is empty.
GameSide readGameSide();

// The keys that the library imports from the data folder into a registry without any.
Sections readRegistryDefaults(const QString& dataFolder);
