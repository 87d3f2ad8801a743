#pragma once

class QString;
class QWidget;

namespace brennet {

// Gives the widget the style sheet that the resource or file holds; an empty one changes nothing.
// Returns whether it could be opened: if not, the widget stays as it is, and the caller should tell
// the player.
bool loadStyleSheet(QWidget& widget, const QString& name);

}  // namespace brennet
