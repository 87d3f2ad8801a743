#pragma once

#include <QString>
#include <QStringList>

#include "model/KeyConflicts.h"
#include "model/KeySlot.h"
#include "model/LoadReport.h"

namespace brennet {

// What the windows call a key of a scheme, in the player's language: "Hero skill 1", "Wheel up".
[[nodiscard]] QString slotText(KeySlot slot);

// Why `key` is refused, in the player's language: "A is Hero skill 1".
[[nodiscard]] QString conflictText(KeyWord key, const KeyConflict& conflict);

// Several texts in one line.
[[nodiscard]] QString listText(const QStringList& texts);

// Why a key or a choice of a settings file could not be used, in the player's language: "A is Hero
// skill 1".
[[nodiscard]] QString dropReason(const DroppedKey& dropped);
[[nodiscard]] QString dropReason(const DroppedChoice& dropped);

// What became of a key of the settings file, in the player's language: "Wheel up: A is Hero skill
// 1". The setting group is named unless it is `currentScheme` (0 to 2; other numbers mean none).
[[nodiscard]] QString droppedKeyText(const DroppedKey& dropped, int currentScheme);

}  // namespace brennet
