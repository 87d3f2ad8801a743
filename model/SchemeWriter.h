#pragma once

#include "model/HotkeyScheme.h"

namespace brennet {

class MarkupDocument;

// Adds the settings of `scheme` as children of the element at the document's main position.
// The quick-cast marks of the items are those of `current`, the current scheme, whichever scheme is
// written: files have always been written that way.
// Returns whether every element could be added.
bool writeScheme(MarkupDocument& document, const HotkeyScheme& scheme, const HotkeyScheme& current);

}  // namespace brennet
