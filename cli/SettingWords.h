#pragma once

#include <string>

#include "model/SchemeDifferences.h"

// The values of a setting group in plain English and UTF-8.
namespace brennet::cli {

// What the value is called: "hero skill 1", "item 2, quick cast", "ZoomValue", "QuickChat 3".
[[nodiscard]] std::string nameOf(SettingPart part);

// The value itself: "Alt + Q", "on", "100", "own item keys", "gg"; "-" for no key and no phrase.
[[nodiscard]] std::string valueOf(const HotkeyScheme& scheme, SettingPart part);

}  // namespace brennet::cli
