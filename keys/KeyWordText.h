#pragma once

#include <string>

#include "keys/KeyWord.h"

namespace brennet {

// The text of a key with its modifiers, for example "CTRL + Alt + SHIFT + Q".
//
// The modifiers are in this fixed order, whatever the player pressed first; the quick-cast mark is
// not shown. Returns false, with `out` empty, if the key itself has no name, as when there is no
// key.
bool formatKeyWord(KeyWord word, std::u16string& out);

}  // namespace brennet
