#include "gameside/dota7/Dota7KeyNames.h"

#include <string_view>

#include "keys/KeyName.h"
#include "markup/text/Utf8.h"

namespace brennet {
namespace {

struct Utf8KeyName {
  int code;
  std::string_view name;
};

// Wording and coverage differ from the capture names on purpose: the two families of windows each
// name keys in their own way.
//
// All names are taken as UTF-8. That of the full-stop key (0xBE) is the byte pair A1 A3, which is
// an ideographic full stop in GB2312; as UTF-8 each of the bytes is a stray continuation byte and
// becomes U+FFFD. Players have that text in their registry, so it stays.
constexpr Utf8KeyName kDota7Names[] = {
    {0x03, "CTRL + Break"},
    {0x04, "MBTN"},
    {0x08, "Backspace"},
    {0x09, "Tab"},
    {0x0C, "Clear"},
    {0x0D, "Enter"},
    {0x10, "Shift"},
    {0x11, "CTRL"},
    {0x12, "ALT"},
    {0x13, "Pause"},
    {0x14, "Caps Lock"},
    {0x1B, "Esc"},
    {0x20, "Spacebar"},
    {0x21, "PageUp"},
    {0x22, "PageDown"},
    {0x23, "End"},
    {0x24, "Home"},
    {0x25, "LEFTARROW"},
    {0x26, "UPARROW"},
    {0x27, "RIGHTARROW"},
    {0x28, "DOWNARROW"},
    {0x29, "Select"},
    {0x2B, "EXECUTE"},
    {0x2C, "PrintScreen"},
    {0x2D, "Ins"},
    {0x2E, "Del"},
    {0x2F, "Help"},
    {0x30, "0"},
    {0x31, "1"},
    {0x32, "2"},
    {0x33, "3"},
    {0x34, "4"},
    {0x35, "5"},
    {0x36, "6"},
    {0x37, "7"},
    {0x38, "8"},
    {0x39, "9"},
    {0x41, "A"},
    {0x42, "B"},
    {0x43, "C"},
    {0x44, "D"},
    {0x45, "E"},
    {0x46, "F"},
    {0x47, "G"},
    {0x48, "H"},
    {0x49, "I"},
    {0x4A, "J"},
    {0x4B, "K"},
    {0x4C, "L"},
    {0x4D, "M"},
    {0x4E, "N"},
    {0x4F, "O"},
    {0x50, "P"},
    {0x51, "Q"},
    {0x52, "R"},
    {0x53, "S"},
    {0x54, "T"},
    {0x55, "U"},
    {0x56, "V"},
    {0x57, "W"},
    {0x58, "X"},
    {0x59, "Y"},
    {0x5A, "Z"},
    {0x5B, "LeftWin"},
    {0x5C, "RightWin"},
    {0x5D, "RightClickMenu"},
    {0x60, "NUMPAD0"},
    {0x61, "NUMPAD1"},
    {0x62, "NUMPAD2"},
    {0x63, "NUMPAD3"},
    {0x64, "NUMPAD4"},
    {0x65, "NUMPAD5"},
    {0x66, "NUMPAD6"},
    {0x67, "NUMPAD7"},
    {0x68, "NUMPAD8"},
    {0x69, "NUMPAD9"},
    {0x6A, "NUMPAD*"},
    {0x6B, "NUMPAD+"},
    {0x6D, "NUMPAD-"},
    {0x6E, "NUMPAD."},
    {0x6F, "NUMPAD/"},
    {0x70, "F1"},
    {0x71, "F2"},
    {0x72, "F3"},
    {0x73, "F4"},
    {0x74, "F5"},
    {0x75, "F6"},
    {0x76, "F7"},
    {0x77, "F8"},
    {0x78, "F9"},
    {0x79, "F10"},
    {0x7A, "F11"},
    {0x7B, "F12"},
    {0x90, "NumLock"},
    {0x91, "ScrollLock"},
    {0xBA, ";"},
    {0xBB, "="},
    {0xBC, ","},
    {0xBD, "-"},
    {0xBE, "\xA1\xA3"},
    {0xBF, "/"},
    {0xC0, "~"},
    {0xDB, "["},
    {0xDC, "\\"},
    {0xDD, "]"},
    {0xDE, "'"},
};
static_assert(isSortedByCode(kDota7Names), "a code that stands twice would lose a name");

}  // namespace

Dota7KeyNames::Dota7KeyNames() {
  for (const Utf8KeyName& row : kDota7Names) utf8ToUtf16(row.name, names_[row.code]);
}

std::u16string Dota7KeyNames::keyName(int code) {
  return names_[code];
}

std::u16string Dota7KeyNames::keyText(int keyCode, int modifierCode) {
  const std::u16string modifier = keyName(modifierCode);
  const std::u16string key = keyName(keyCode);
  return modifier.empty() ? key : modifier + u" + " + key;
}

}  // namespace brennet
