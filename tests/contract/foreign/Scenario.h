// What a host does with the library, from the load to the unload, with every result checked.
#pragma once

#include "Library.h"
#include "SettingsFile.h"

// Right after the library was loaded: the getters and the record give the defaults.
void checkDefaults(const Library& library);

// What is refused before any settings are there.
void checkRefusals(const Library& library);

// The elements of the settings that the following expect.
extern const char kSettings[];

// The settings are loaded; all getters and the record give what they say.
void checkLoad(const Library& library, const SettingsFile& settings);

// Each getter tells of its own setting, not of another's.
void checkEachGetter(const Library& library);

// The record is filled as far as it was announced to be there.
void checkAnnouncedSizes(const Library& library);

// The feature is switched off and on again.
void checkSwitch(const Library& library);

// A record comes back from the game, unchanged and changed.
void checkApply(const Library& library, const SettingsFile& settings);

// The memory of the record is not what it should be.
void checkBadMemory(const Library& library, const SettingsFile& settings);
