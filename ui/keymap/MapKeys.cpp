#include "ui/keymap/MapKeys.h"

#include <algorithm>

namespace brennet {
namespace {

// clang-format off
constexpr MapKey kKeys[] = {
    {0x1B, 0, 0, 1, 1, "Esc"},
    {0x70, 2, 0, 1, 1, "F1"},  {0x71, 3, 0, 1, 1, "F2"},
    {0x72, 4, 0, 1, 1, "F3"},  {0x73, 5, 0, 1, 1, "F4"},
    {0x74, 6.5, 0, 1, 1, "F5"},  {0x75, 7.5, 0, 1, 1, "F6"},
    {0x76, 8.5, 0, 1, 1, "F7"},  {0x77, 9.5, 0, 1, 1, "F8"},
    {0x78, 11, 0, 1, 1, "F9"},  {0x79, 12, 0, 1, 1, "F10"},
    {0x7A, 13, 0, 1, 1, "F11"}, {0x7B, 14, 0, 1, 1, "F12"},
    {0x2C, 15.25, 0, 1, 1, "PrSc"}, {0x91, 16.25, 0, 1, 1, "ScLk"}, {0x13, 17.25, 0, 1, 1, "Pause"},

    {0xC0, 0, 1.25, 1, 1, "`"},
    {0x31, 1, 1.25, 1, 1, nullptr}, {0x32, 2, 1.25, 1, 1, nullptr}, {0x33, 3, 1.25, 1, 1, nullptr},
    {0x34, 4, 1.25, 1, 1, nullptr}, {0x35, 5, 1.25, 1, 1, nullptr}, {0x36, 6, 1.25, 1, 1, nullptr},
    {0x37, 7, 1.25, 1, 1, nullptr}, {0x38, 8, 1.25, 1, 1, nullptr}, {0x39, 9, 1.25, 1, 1, nullptr},
    {0x30, 10, 1.25, 1, 1, nullptr},
    {0xBD, 11, 1.25, 1, 1, "-"}, {0xBB, 12, 1.25, 1, 1, "="}, {0x08, 13, 1.25, 2, 1, "Backspace"},
    {0x2D, 15.25, 1.25, 1, 1, "Ins"}, {0x24, 16.25, 1.25, 1, 1, "Home"},
    {0x21, 17.25, 1.25, 1, 1, "PgUp"},
    {0x90, 18.5, 1.25, 1, 1, "Num"}, {0x6F, 19.5, 1.25, 1, 1, "/"}, {0x6A, 20.5, 1.25, 1, 1, "*"},
    {0x6D, 21.5, 1.25, 1, 1, "-"},

    {0x09, 0, 2.25, 1.5, 1, "Tab"},
    {'Q', 1.5, 2.25, 1, 1, nullptr}, {'W', 2.5, 2.25, 1, 1, nullptr},
    {'E', 3.5, 2.25, 1, 1, nullptr}, {'R', 4.5, 2.25, 1, 1, nullptr},
    {'T', 5.5, 2.25, 1, 1, nullptr}, {'Y', 6.5, 2.25, 1, 1, nullptr},
    {'U', 7.5, 2.25, 1, 1, nullptr}, {'I', 8.5, 2.25, 1, 1, nullptr},
    {'O', 9.5, 2.25, 1, 1, nullptr}, {'P', 10.5, 2.25, 1, 1, nullptr},
    {0xDB, 11.5, 2.25, 1, 1, "["}, {0xDD, 12.5, 2.25, 1, 1, "]"}, {0xDC, 13.5, 2.25, 1.5, 1, "\\"},
    {0x2E, 15.25, 2.25, 1, 1, "Del"}, {0x23, 16.25, 2.25, 1, 1, "End"},
    {0x22, 17.25, 2.25, 1, 1, "PgDn"},
    {0x67, 18.5, 2.25, 1, 1, "7"}, {0x68, 19.5, 2.25, 1, 1, "8"}, {0x69, 20.5, 2.25, 1, 1, "9"},
    {0x6B, 21.5, 2.25, 1, 2, "+"},

    {0x14, 0, 3.25, 1.75, 1, "Caps"},
    {'A', 1.75, 3.25, 1, 1, nullptr}, {'S', 2.75, 3.25, 1, 1, nullptr},
    {'D', 3.75, 3.25, 1, 1, nullptr}, {'F', 4.75, 3.25, 1, 1, nullptr},
    {'G', 5.75, 3.25, 1, 1, nullptr}, {'H', 6.75, 3.25, 1, 1, nullptr},
    {'J', 7.75, 3.25, 1, 1, nullptr}, {'K', 8.75, 3.25, 1, 1, nullptr},
    {'L', 9.75, 3.25, 1, 1, nullptr},
    {0xBA, 10.75, 3.25, 1, 1, ";"}, {0xDE, 11.75, 3.25, 1, 1, "'"},
    {0x0D, 12.75, 3.25, 2.25, 1, "Enter"},
    {0x64, 18.5, 3.25, 1, 1, "4"}, {0x65, 19.5, 3.25, 1, 1, "5"}, {0x66, 20.5, 3.25, 1, 1, "6"},

    {0x10, 0, 4.25, 2.25, 1, "Shift"},
    {'Z', 2.25, 4.25, 1, 1, nullptr}, {'X', 3.25, 4.25, 1, 1, nullptr},
    {'C', 4.25, 4.25, 1, 1, nullptr}, {'V', 5.25, 4.25, 1, 1, nullptr},
    {'B', 6.25, 4.25, 1, 1, nullptr}, {'N', 7.25, 4.25, 1, 1, nullptr},
    {'M', 8.25, 4.25, 1, 1, nullptr},
    {0xBC, 9.25, 4.25, 1, 1, ","}, {0xBE, 10.25, 4.25, 1, 1, "."}, {0xBF, 11.25, 4.25, 1, 1, "/"},
    {0x10, 12.25, 4.25, 2.75, 1, "Shift"}, {0x26, 16.25, 4.25, 1, 1, "Up"},
    {0x61, 18.5, 4.25, 1, 1, "1"}, {0x62, 19.5, 4.25, 1, 1, "2"}, {0x63, 20.5, 4.25, 1, 1, "3"},
    {0x0D, 21.5, 4.25, 1, 2, "Ent"},

    {0x11, 0, 5.25, 1.25, 1, "Ctrl"}, {0x5B, 1.25, 5.25, 1.25, 1, "Win"},
    {0x12, 2.5, 5.25, 1.25, 1, "Alt"}, {0x20, 3.75, 5.25, 6.25, 1, "Space"},
    {0x12, 10, 5.25, 1.25, 1, "Alt"}, {0x5C, 11.25, 5.25, 1.25, 1, "Win"},
    {0x5D, 12.5, 5.25, 1.25, 1, "Menu"}, {0x11, 13.75, 5.25, 1.25, 1, "Ctrl"},
    {0x25, 15.25, 5.25, 1, 1, "Left"}, {0x28, 16.25, 5.25, 1, 1, "Down"},
    {0x27, 17.25, 5.25, 1, 1, "Right"},
    {0x60, 18.5, 5.25, 2, 1, "0"}, {0x6E, 20.5, 5.25, 1, 1, "."},

    {kWheelUp, 22.75, 1.25, 1.5, 1, "Wheel+"},
    {kWheelClick, 22.75, 2.25, 1.5, 1, "Wheel"},
    {kWheelDown, 22.75, 3.25, 1.5, 1, "Wheel-"},
};
// clang-format on

}  // namespace

std::span<const MapKey> mapKeys() {
  return kKeys;
}

QString mapLabel(const MapKey& key) {
  return key.label != nullptr ? QString::fromLatin1(key.label) : QString(QChar(key.code));
}

const MapKey* mapKeyAt(QPointF place) {
  const auto* const found = std::find_if(std::begin(kKeys), std::end(kKeys), [&](const MapKey& k) {
    return place.x() >= k.x && place.x() < k.x + k.width && place.y() >= k.y &&
           place.y() < k.y + k.height;
  });
  return found == std::end(kKeys) ? nullptr : found;
}

int mapOrder(MapCode code) {
  const auto* const found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                         [&](const MapKey& key) { return key.code == code; });
  return static_cast<int>(found - std::begin(kKeys));
}

}  // namespace brennet
