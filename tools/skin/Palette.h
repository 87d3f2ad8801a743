#pragma once

#include "tools/skin/Canvas.h"

// The colours that the pictures have in common with the style sheets, from dark to bright.

namespace brennet::skin {

inline const Color kNight = rgb(0x1e242f);   // windows
inline const Color kStrip = rgb(0x20304c);   // title strips
inline const Color kSunken = rgb(0x2d3851);  // pressed buttons
inline const Color kPage = rgb(0x2f384e);    // pages and boxes
inline const Color kSunkenEdge = rgb(0x414e6d);
inline const Color kButton = rgb(0x435777);
inline const Color kFaint = rgb(0x4d597c);  // what cannot be used
inline const Color kEdge = rgb(0x526e7a);   // borders of windows
inline const Color kButtonEdge = rgb(0x6886b4);
inline const Color kLabel = rgb(0x909fb0);
inline const Color kHighlight = rgb(0x97b6e9);
inline const Color kBright = rgb(0xc9d3fc);
inline const Color kText = rgb(0xdeebfe);
inline const Color kWhite = rgb(0xffffff);
inline const Color kGold = rgb(0xffd166);  // the one warm colour: quick cast is on

}  // namespace brennet::skin
