#pragma once

class QString;
class QWidget;

namespace brennet {

// The warnings of the settings windows about keys. Each is modal to `parent`, runs an event loop,
// and returns when the player has closed it. Their texts come from the host's catalogue.

// The pressed key is already used for something else. `why` is shown below that, in a line for each
// thing that has the key; empty if there is nothing to say.
void tellKeyIsUsed(QWidget* parent, const QString& why);

// One of the keys of the chosen set is already used for something else. `why` as above.
void tellKeySetIsUsed(QWidget* parent, const QString& why);

}  // namespace brennet
