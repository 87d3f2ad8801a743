#pragma once

// The fonts that a program draws with, which are not those of the machine. There are sets of them:
//
//   dejavu  DejaVu alone, which has no Chinese letters
//   wqy     DejaVu and WenQuanYi Micro Hei
//   noto    DejaVu and Noto Sans CJK, whose lines are as tall as those of Chinese fonts of Windows
//
// Under Windows all are one: the fonts of the system, or under Wine those that its root file system
// brings along.

namespace brennet::test {

// Has the application that is made next use one of the sets. To be called before it is made, and
// before another thread starts.
void useFontSet(const char* name);

// The same with the set that the environment names in BRENNET_TEST_FONTS; with "dejavu" where it
// names none.
void useFontSetOfTheEnvironment();

// Whether the application has the fonts of the set that was chosen and no others; says on the
// standard error output what it misses.
[[nodiscard]] bool hasFontsOfTheSet();

}  // namespace brennet::test
