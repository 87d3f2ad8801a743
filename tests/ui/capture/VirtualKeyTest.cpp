#include "ui/capture/VirtualKey.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QString>

#include "keys/CaptureKeyNames.h"
#include "platform/Keyboard.h"

namespace brennet {
namespace {

TEST(VirtualKey, FollowsFromTheKeyOfAUnitedStatesKeyboard) {
  struct Row {
    int key;
    bool isKeypad;
    unsigned code;
  };
  constexpr Row kRows[] = {
      {Qt::Key_A, false, 'A'},
      {Qt::Key_Z, false, 'Z'},
      {Qt::Key_0, false, '0'},
      {Qt::Key_9, false, '9'},
      {Qt::Key_0, true, 0x60},
      {Qt::Key_9, true, 0x69},
      {Qt::Key_Asterisk, true, 0x6A},
      {Qt::Key_Asterisk, false, '8'},
      {Qt::Key_Plus, true, 0x6B},
      {Qt::Key_Plus, false, 0xBB},
      {Qt::Key_Slash, true, 0x6F},
      {Qt::Key_Slash, false, 0xBF},
      {Qt::Key_Enter, true, 0x0D},
      {Qt::Key_Left, true, 0x25},
      {Qt::Key_F1, false, 0x70},
      {Qt::Key_F12, false, 0x7B},
      {Qt::Key_F24, false, 0x87},
      {Qt::Key_Control, false, 0x11},
      {Qt::Key_Alt, false, 0x12},
      {Qt::Key_Shift, false, 0x10},
      {Qt::Key_Print, false, 0x2C},
      {Qt::Key_SysReq, false, 0x2C},
      {Qt::Key_Backtab, false, 0x09},
      {Qt::Key_AsciiTilde, false, 0xC0},
      {Qt::Key_F25, false, 0},
      {Qt::Key_unknown, false, 0},
      {0, false, 0},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(virtualKeyOfQtKey(row.key, row.isKeypad), row.code)
        << std::hex << row.key << " keypad " << row.isKeypad;
  }
}

// The capture fields can name every key that a keyboard has.
TEST(VirtualKey, HasANameWhereItHasACode) {
  for (int key = Qt::Key_Escape; key <= Qt::Key_F12; ++key) {
    const unsigned code = virtualKeyOfQtKey(key, false);
    std::u16string name;
    if (code == 0) continue;
    EXPECT_TRUE(getKeyName(static_cast<int>(code), name)) << std::hex << code;
  }
}

TEST(VirtualKey, OfAnEventIsTheSystemsWhereItSendsOne) {
  constexpr unsigned kNative = 0x51;
  const QKeyEvent digit(QEvent::KeyPress, Qt::Key_5, Qt::KeypadModifier, 0, kNative, 0);
  const bool isSent = platform::keyEventsCarryVirtualKeys();
  EXPECT_EQ(virtualKeyOf(digit), isSent ? kNative : 0x65U);
}

}  // namespace
}  // namespace brennet
