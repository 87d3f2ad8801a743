#pragma once

#include <string>
#include <string_view>

#include "model/LoadReport.h"

// What a load had to drop, in plain English and UTF-8, for whoever maintains a settings file.
namespace brennet {

// A key as a player reads it, or its number where it has no name: "Alt + F1", "key 64512".
[[nodiscard]] std::string nameOrNumber(KeyWord key);

// A text of a file between quotation marks, on one line: without control characters, and cut where
// it is longer than any number.
[[nodiscard]] std::string quotedText(std::u16string_view text);

// What keeps `key` from being somebody else's: "Q is hero skill 1", "RETURN cannot be bound".
[[nodiscard]] std::string conflictText(KeyWord key, const KeyConflict& conflict);

// Why a key was dropped: the same, or "\"x\" is no key".
[[nodiscard]] std::string reasonText(const DroppedKey& dropped);

// Where it is, what it was for and why it was dropped, on one line: "line 12, column 5: setting
// group 1, wheel up: Q is hero skill 1".
[[nodiscard]] std::string lineText(const DroppedKey& dropped);

}  // namespace brennet
