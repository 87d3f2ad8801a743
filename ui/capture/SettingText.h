#pragma once

#include <QString>

#include "model/SchemeDifferences.h"

// The values of a scheme in the player's language.
namespace brennet {

// What a value is called: "Hero skill 1", "Hero skill 1 quick cast", "Disable left Alt key".
[[nodiscard]] QString settingText(SettingPart part);

// What it is in `scheme`: "Alt + Q", "on", "none".
[[nodiscard]] QString valueText(const HotkeyScheme& scheme, SettingPart part);

// The same with phrases as they are: long ones and those with odd spaces, too, look different then.
[[nodiscard]] QString wholeValueText(const HotkeyScheme& scheme, SettingPart part);

// The same for values that are kept elsewhere.
[[nodiscard]] QString onOffText(bool isOn);
[[nodiscard]] QString noneText();
// A phrase in quotation marks, shortened; or that there is none.
[[nodiscard]] QString phraseText(const QString& phrase);

// What a value was and is: "Hero skill 1: Q → W".
[[nodiscard]] QString changeText(const QString& what, const QString& before, const QString& after);

}  // namespace brennet
