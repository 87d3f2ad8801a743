#pragma once

#include <QPalette>
#include <QString>

namespace brennet {

// A style sheet in the colours of the system, for players who have set it to high contrast: texts,
// borders and handles in the colour of its texts, backgrounds in that of its windows; what is
// chosen, has the keyboard or is under the mouse in those of its selections. Sizes stay.
//
// Pictures by themselves keep their colours, on the background that they were drawn for; those
// below a text are left out.
[[nodiscard]] QString inSystemColors(QString sheet, const QPalette& system);

}  // namespace brennet
