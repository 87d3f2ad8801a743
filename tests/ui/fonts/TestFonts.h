#pragma once

// The fonts that a program draws with, instead of those of the machine. They come in sets:
//
//   dejavu  DejaVu alone, which has no Chinese letters
//   wqy     DejaVu and WenQuanYi Micro Hei
//   noto    DejaVu and Noto Sans CJK, whose lines are as tall as those of Chinese Windows fonts
//
// Under Windows all sets are the same: the fonts of the system, or of Wine's root file system.

namespace brennet::test {

// Chooses the set for the application. Call it before that is made and before any other thread
// starts.
void useFontSet(const char* name);

// Chooses the set that BRENNET_TEST_FONTS names, or "dejavu" if that is not set.
void useFontSetOfTheEnvironment();

// Whether the application has the fonts of the chosen set and no others. Says on standard error
// what is wrong.
[[nodiscard]] bool hasFontsOfTheSet();

}  // namespace brennet::test
