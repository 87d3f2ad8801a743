#pragma once

namespace brennet {

struct HotkeyScheme;

// Resets the scheme and gives it the keys that most players use: Q W E R for the four skills that a
// hero learns, A S D F and Z X C V for the rows of the command card above them, and Alt+1 to Alt+6
// for the items, from top left to bottom right. None of them is refused: the reset removes all
// other keys and leaves the quick-chat phrases on Alt+F1 to Alt+F8.
void recommend(HotkeyScheme& scheme);

}  // namespace brennet
