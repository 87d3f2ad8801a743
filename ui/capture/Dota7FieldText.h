#pragma once

#include <QString>

#include "gameside/dota7/Dota7Values.h"

namespace brennet {

// What players call a key field of the DotA 7 pages, in their language: "Patrol", "Item slot 1".
[[nodiscard]] QString dota7FieldText(const Dota7KeyField& field);

// The same for the switches and the phrases.
[[nodiscard]] QString dota7SwitchText(const Dota7Switch& row);
[[nodiscard]] QString dota7PhraseText(const Dota7Phrase& row);

// Whether the field is in the window for phrases, and not on the page.
[[nodiscard]] bool isDota7ChatKey(const Dota7KeyField& field);

// The same for the player who sees the other window: says how to get there.
[[nodiscard]] QString dota7FieldTextElsewhere(const Dota7KeyField& field);

}  // namespace brennet
