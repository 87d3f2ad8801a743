#pragma once

#include <string>

#include "model/HotkeyConfig.h"

namespace brennet::bench {

// The sample settings file: its bytes, and what a load makes of them.
const std::string& sampleBytes();
HotkeyConfig& sampleConfig();

// The bytes of the sample of the game's preference file.
const std::string& samplePreferences();

// The path of a file with the sample's bytes in a scratch folder. The folder is the user's profile
// as well, without a game in it, so that loading and saving write nothing but the settings file.
// Under Windows the profile cannot be chosen; tools/windows/run.sh starts programs with a new one.
const std::u16string& sampleFile();

}  // namespace brennet::bench
