#pragma once

class QWidget;

namespace brennet {

// The warnings of the settings windows about keys. Each is modal to `parent`, runs an event loop,
// and returns when the player has closed it. Their texts are those of the host's catalogue.

// The key that was pressed has something else to do already.
void tellKeyIsUsed(QWidget* parent);

// One of the keys of the set that was chosen has.
void tellKeySetIsUsed(QWidget* parent);

}  // namespace brennet
