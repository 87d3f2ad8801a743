#pragma once

class QWidget;

namespace brennet {

// The warnings of the settings windows about keys. Each is modal to `parent`, runs an event loop,
// and returns when the player has closed it. Their texts come from the host's catalogue.

// The pressed key is already used for something else.
void tellKeyIsUsed(QWidget* parent);

// One of the keys of the chosen set is already used for something else.
void tellKeySetIsUsed(QWidget* parent);

}  // namespace brennet
