#pragma once

#include <QString>

#include <cstdint>
#include <vector>

#include "model/KeyConflicts.h"
#include "ui/capture/SlotCapture.h"

// Why keys are refused, in the player's language. Each line names a key and one thing that has it:
// "Alt + Q: Hero skill 9 (top row, first)".
namespace brennet {

// The windows that have fields for keys of a scheme.
enum class KeyWindow : std::uint8_t {
  Main,
  Orrery,
  QuickChat,
  None,  // keys of which only the settings file knows
};

// The window with the field of a key.
[[nodiscard]] KeyWindow windowOf(KeySlot slot);

// A slot, and where it is if its name does not say so: "Hero skill 9 (top row, first)".
[[nodiscard]] QString placeText(KeySlot slot);

// A line of a refusal: the text of a key, and what has it.
[[nodiscard]] QString keyLine(const QString& key, const QString& what);

// A line of a tool tip: what has no key, and what else has the key of the field.
[[nodiscard]] QString noKeyLine(const QString& what);
[[nodiscard]] QString alsoLine(const QString& what);

// What the player is told of Ctrl+V, besides what has it.
[[nodiscard]] QString pasteLine(const QString& key);

// What has a key. Says how to get there if that is not in the window `from`.
[[nodiscard]] QString holderText(const KeyConflict& conflict, KeyWindow from);

// What the field of a key says about it, a line each: the key and what it does, and what else
// reacts to it ("also Wheel up"). Or that there is no key.
[[nodiscard]] QString fieldText(const HotkeyScheme& scheme, KeySlot slot);

// Why a key that was pressed in a field of `from` was refused.
[[nodiscard]] QString refusalText(const Refusal& refusal, KeyWindow from);

// Why a set of keys was refused that was chosen in `from`.
[[nodiscard]] QString refusalText(const std::vector<TakenKey>& taken, KeyWindow from);

}  // namespace brennet
