#pragma once

#include "model/HotkeyScheme.h"

namespace brennet {

class MarkupDocument;

// Reads the children of the element that `document` has entered into `scheme`. A missing element
// leaves its members as they are; a key that conflicts with one read before becomes no key.
void readScheme(MarkupDocument& document, HotkeyScheme& scheme);

}  // namespace brennet
