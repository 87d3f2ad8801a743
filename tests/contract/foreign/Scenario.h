// What a host does with the library between loading and unloading it, with every result checked.
#pragma once

#include "Library.h"
#include "SettingsFile.h"

// Right after the library was loaded: the getters and the record give the defaults.
void checkDefaults(const Library& library);

// Refusals before any settings are loaded.
void checkRefusals(const Library& library);

// The elements of the settings that the functions below expect.
extern const char kSettings[];

// The settings are loaded; all getters and the record give what they say.
void checkLoad(const Library& library, const SettingsFile& settings);

// Each getter returns its own setting, not another's.
void checkEachGetter(const Library& library);

// The record is filled up to the announced size.
void checkAnnouncedSizes(const Library& library);

// The feature is switched off and on again.
void checkSwitch(const Library& library);

// A record comes back from the game, unchanged and changed.
void checkApply(const Library& library, const SettingsFile& settings);

// The memory of the record is missing, read-only, or shorter than announced.
void checkBadMemory(const Library& library, const SettingsFile& settings);
