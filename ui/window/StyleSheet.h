#pragma once

#include <optional>

class QString;
class QWidget;

namespace brennet {

// Whether style sheets that are loaded from now on get the colours of the system (SystemColors.h).
// Without a value, which is the default: if the system is set to high contrast.
void setSystemColors(std::optional<bool> areUsed);

// Gives the widget the style sheet that the resource or file holds; an empty one changes nothing.
// Returns whether it could be opened: if not, the widget stays as it is, and the caller should tell
// the player.
bool loadStyleSheet(QWidget& widget, const QString& name);

}  // namespace brennet
