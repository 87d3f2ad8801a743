#pragma once

#include "model/HotkeyScheme.h"
#include "model/LoadReport.h"

namespace brennet {

class MarkupDocument;

// Reads the children of the element that `document` has entered into `scheme`. A missing element
// leaves its members as they are; a key that conflicts with another one becomes no key: of two
// equal keys the one that is read first is kept (KeyOffers.h). Returns what came to nothing, in the
// order of the document, all with scheme 0.
LoadReport readScheme(MarkupDocument& document, HotkeyScheme& scheme);

}  // namespace brennet
