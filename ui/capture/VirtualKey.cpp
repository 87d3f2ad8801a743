#include "ui/capture/VirtualKey.h"

#include <QKeyEvent>

#include "platform/Keyboard.h"

namespace brennet {
namespace {

// Keys whose codes are consecutive both in Qt and in Windows.
struct KeyRange {
  int first, last;
  unsigned code;  // of the first
};
constexpr KeyRange kRanges[] = {
    {Qt::Key_0, Qt::Key_9, 0x30},
    {Qt::Key_A, Qt::Key_Z, 0x41},
    {Qt::Key_F1, Qt::Key_F24, 0x70},
};
constexpr KeyRange kKeypadDigits = {Qt::Key_0, Qt::Key_9, 0x60};

struct KeyRow {
  int key;
  unsigned code;
};
constexpr KeyRow kKeypadKeys[] = {
    {Qt::Key_Asterisk, 0x6A}, {Qt::Key_Plus, 0x6B},  {Qt::Key_Minus, 0x6D},
    {Qt::Key_Period, 0x6E},   {Qt::Key_Comma, 0x6E}, {Qt::Key_Slash, 0x6F},
};
constexpr KeyRow kKeys[] = {
    {Qt::Key_Backspace, 0x08},
    {Qt::Key_Tab, 0x09},
    {Qt::Key_Backtab, 0x09},
    {Qt::Key_Clear, 0x0C},
    {Qt::Key_Return, 0x0D},
    {Qt::Key_Enter, 0x0D},
    {Qt::Key_Shift, 0x10},
    {Qt::Key_Control, 0x11},
    {Qt::Key_Alt, 0x12},
    {Qt::Key_AltGr, 0x12},
    {Qt::Key_Pause, 0x13},
    {Qt::Key_CapsLock, 0x14},
    {Qt::Key_Escape, 0x1B},
    {Qt::Key_Space, 0x20},
    {Qt::Key_PageUp, 0x21},
    {Qt::Key_PageDown, 0x22},
    {Qt::Key_End, 0x23},
    {Qt::Key_Home, 0x24},
    {Qt::Key_Left, 0x25},
    {Qt::Key_Up, 0x26},
    {Qt::Key_Right, 0x27},
    {Qt::Key_Down, 0x28},
    {Qt::Key_Print, 0x2C},
    {Qt::Key_SysReq, 0x2C},  // what X11 makes of Print with Alt
    {Qt::Key_Insert, 0x2D},
    {Qt::Key_Delete, 0x2E},
    {Qt::Key_Meta, 0x5B},
    {Qt::Key_Super_L, 0x5B},
    {Qt::Key_Super_R, 0x5C},
    {Qt::Key_Menu, 0x5D},
    {Qt::Key_NumLock, 0x90},
    {Qt::Key_ScrollLock, 0x91},
    {Qt::Key_VolumeMute, 0xAD},
    {Qt::Key_VolumeDown, 0xAE},
    {Qt::Key_VolumeUp, 0xAF},
    // A key and what it is with Shift.
    {Qt::Key_Exclam, 0x31},
    {Qt::Key_At, 0x32},
    {Qt::Key_NumberSign, 0x33},
    {Qt::Key_Dollar, 0x34},
    {Qt::Key_Percent, 0x35},
    {Qt::Key_AsciiCircum, 0x36},
    {Qt::Key_Ampersand, 0x37},
    {Qt::Key_Asterisk, 0x38},
    {Qt::Key_ParenLeft, 0x39},
    {Qt::Key_ParenRight, 0x30},
    {Qt::Key_Semicolon, 0xBA},
    {Qt::Key_Colon, 0xBA},
    {Qt::Key_Equal, 0xBB},
    {Qt::Key_Plus, 0xBB},
    {Qt::Key_Comma, 0xBC},
    {Qt::Key_Less, 0xBC},
    {Qt::Key_Minus, 0xBD},
    {Qt::Key_Underscore, 0xBD},
    {Qt::Key_Period, 0xBE},
    {Qt::Key_Greater, 0xBE},
    {Qt::Key_Slash, 0xBF},
    {Qt::Key_Question, 0xBF},
    {Qt::Key_QuoteLeft, 0xC0},
    {Qt::Key_AsciiTilde, 0xC0},
    {Qt::Key_BracketLeft, 0xDB},
    {Qt::Key_BraceLeft, 0xDB},
    {Qt::Key_Backslash, 0xDC},
    {Qt::Key_Bar, 0xDC},
    {Qt::Key_BracketRight, 0xDD},
    {Qt::Key_BraceRight, 0xDD},
    {Qt::Key_Apostrophe, 0xDE},
    {Qt::Key_QuoteDbl, 0xDE},
};

constexpr bool contains(const KeyRange& range, int key) {
  return key >= range.first && key <= range.last;
}

constexpr unsigned codeIn(const KeyRange& range, int key) {
  return range.code + static_cast<unsigned>(key - range.first);
}

// 0 when no row has the key.
template <class Rows>
unsigned find(const Rows& rows, int key) {
  for (const KeyRow& row : rows) {
    if (row.key == key) return row.code;
  }
  return 0;
}

}  // namespace

unsigned virtualKeyOf(const QKeyEvent& event) {
  if (platform::keyEventsCarryVirtualKeys()) return event.nativeVirtualKey();
  return virtualKeyOfQtKey(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
}

unsigned virtualKeyOfQtKey(int key, bool isKeypad) {
  if (isKeypad) {
    if (contains(kKeypadDigits, key)) return codeIn(kKeypadDigits, key);
    if (const unsigned code = find(kKeypadKeys, key)) return code;
  }
  for (const KeyRange& range : kRanges) {
    if (contains(range, key)) return codeIn(range, key);
  }
  return find(kKeys, key);
}

}  // namespace brennet
