#pragma once

#include <array>
#include <string_view>

#include "tools/skin/Canvas.h"

// The pictures of the skin. States of a control are stacked from the top, in the order that
// war3key.qss and msgbox.qss cut them.

namespace brennet::skin {

[[nodiscard]] Canvas closeButton();  // 10 x 10: normal, hover, pressed, disabled
[[nodiscard]] Canvas pageTab();      // 85 x 26: normal, hover, pressed and checked
[[nodiscard]] Canvas castToggle();   // 13 x 13: normal cast, quick cast
[[nodiscard]] Canvas modeButton();
[[nodiscard]] Canvas modeButtonHovered();
[[nodiscard]] Canvas arrowUp();
[[nodiscard]] Canvas arrowDown();
[[nodiscard]] Canvas dropArrow();

// 55 x 55: normal, hover and the rest
[[nodiscard]] Canvas panelButton();
[[nodiscard]] Canvas chatButton();
[[nodiscard]] Canvas dotaButton();
[[nodiscard]] Canvas chatKeyButton();
[[nodiscard]] Canvas chatKeyButtonHovered();

[[nodiscard]] Canvas wheel();
[[nodiscard]] Canvas phraseField();
[[nodiscard]] Canvas phraseFieldHovered();

struct Picture {
  std::string_view file;
  Canvas (*draw)();
};

inline constexpr std::array<Picture, 16> kPictures = {{
    {"auto.png", castToggle},
    {"bg.png", pageTab},
    {"box.png", panelButton},
    {"btnSwitch_1.png", modeButtonHovered},
    {"btnSwitch_2.png", modeButton},
    {"chat.png", chatButton},
    {"chatHotKey_1.png", chatKeyButton},
    {"chatHotKey_2.png", chatKeyButtonHovered},
    {"chat_hover.png", phraseFieldHovered},
    {"chat_normal.png", phraseField},
    {"closebtn_4s.png", closeButton},
    {"combo_droparrow.png", dropArrow},
    {"dota7.png", dotaButton},
    {"down.png", arrowDown},
    {"up.png", arrowUp},
    {"wheel.png", wheel},
}};

}  // namespace brennet::skin
