#include "keys/Dota7KeyNames.h"

#include "keys/KeyName.h"

namespace brennet {
namespace {

// Wording and coverage differ from the capture names on purpose: the two families of screens name
// keys each in its own way.
//
// All names are UTF-8 in origin. That of the full-stop key (0xBE) is the byte pair A1 A3, which is
// an ideographic full stop in GB2312; as UTF-8 each of the bytes is a stray continuation byte and
// decodes to U+FFFD. Players have that text in their registry, so it stays.
constexpr KeyName kDota7Names[] = {
    {0x03, u"CTRL + Break"},
    {0x04, u"MBTN"},
    {0x08, u"Backspace"},
    {0x09, u"Tab"},
    {0x0C, u"Clear"},
    {0x0D, u"Enter"},
    {0x10, u"Shift"},
    {0x11, u"CTRL"},
    {0x12, u"ALT"},
    {0x13, u"Pause"},
    {0x14, u"Caps Lock"},
    {0x1B, u"Esc"},
    {0x20, u"Spacebar"},
    {0x21, u"PageUp"},
    {0x22, u"PageDown"},
    {0x23, u"End"},
    {0x24, u"Home"},
    {0x25, u"LEFTARROW"},
    {0x26, u"UPARROW"},
    {0x27, u"RIGHTARROW"},
    {0x28, u"DOWNARROW"},
    {0x29, u"Select"},
    {0x2B, u"EXECUTE"},
    {0x2C, u"PrintScreen"},
    {0x2D, u"Ins"},
    {0x2E, u"Del"},
    {0x2F, u"Help"},
    {0x30, u"0"},
    {0x31, u"1"},
    {0x32, u"2"},
    {0x33, u"3"},
    {0x34, u"4"},
    {0x35, u"5"},
    {0x36, u"6"},
    {0x37, u"7"},
    {0x38, u"8"},
    {0x39, u"9"},
    {0x41, u"A"},
    {0x42, u"B"},
    {0x43, u"C"},
    {0x44, u"D"},
    {0x45, u"E"},
    {0x46, u"F"},
    {0x47, u"G"},
    {0x48, u"H"},
    {0x49, u"I"},
    {0x4A, u"J"},
    {0x4B, u"K"},
    {0x4C, u"L"},
    {0x4D, u"M"},
    {0x4E, u"N"},
    {0x4F, u"O"},
    {0x50, u"P"},
    {0x51, u"Q"},
    {0x52, u"R"},
    {0x53, u"S"},
    {0x54, u"T"},
    {0x55, u"U"},
    {0x56, u"V"},
    {0x57, u"W"},
    {0x58, u"X"},
    {0x59, u"Y"},
    {0x5A, u"Z"},
    {0x5B, u"LeftWin"},
    {0x5C, u"RightWin"},
    {0x5D, u"RightClickMenu"},
    {0x60, u"NUMPAD0"},
    {0x61, u"NUMPAD1"},
    {0x62, u"NUMPAD2"},
    {0x63, u"NUMPAD3"},
    {0x64, u"NUMPAD4"},
    {0x65, u"NUMPAD5"},
    {0x66, u"NUMPAD6"},
    {0x67, u"NUMPAD7"},
    {0x68, u"NUMPAD8"},
    {0x69, u"NUMPAD9"},
    {0x6A, u"NUMPAD*"},
    {0x6B, u"NUMPAD+"},
    {0x6D, u"NUMPAD-"},
    {0x6E, u"NUMPAD."},
    {0x6F, u"NUMPAD/"},
    {0x70, u"F1"},
    {0x71, u"F2"},
    {0x72, u"F3"},
    {0x73, u"F4"},
    {0x74, u"F5"},
    {0x75, u"F6"},
    {0x76, u"F7"},
    {0x77, u"F8"},
    {0x78, u"F9"},
    {0x79, u"F10"},
    {0x7A, u"F11"},
    {0x7B, u"F12"},
    {0x90, u"NumLock"},
    {0x91, u"ScrollLock"},
    {0xBA, u";"},
    {0xBB, u"="},
    {0xBC, u","},
    {0xBD, u"-"},
    {0xBE, u"\uFFFD\uFFFD"},
    {0xBF, u"/"},
    {0xC0, u"~"},
    {0xDB, u"["},
    {0xDC, u"\\"},
    {0xDD, u"]"},
    {0xDE, u"'"},
};
static_assert(isSortedByCode(kDota7Names), "a code that stands twice would lose a name");

}  // namespace

Dota7KeyNames::Dota7KeyNames() {
  for (const KeyName& row : kDota7Names) names_.emplace_hint(names_.end(), row.code, row.name);
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
