// The record of active key bindings that the host hands to the game and back.
//
// A wire format: offsets, widths and encodings never change. Integers are little-endian. This
// header is self-contained and compiles as C++11.
#ifndef BRENNET_HOTKEY_BLOCK_H
#define BRENNET_HOTKEY_BLOCK_H

#include <cstddef>
#include <cstdint>

namespace brennet {

#pragma pack(push, 1)

// Keys are 16 bits: the high byte a Windows virtual-key code, the low byte modifiers (0x01 Shift,
// 0x02 Ctrl, 0x04 Alt). A field of 0 means that no key is bound. In the hero skill and item fields
// 0x08 marks quick cast.
struct HotkeyBlock {
  // Bytes that the caller provides, counted from this field on. Only that many are touched.
  std::uint32_t size;
  // A bit for each of BRENNET_BLOCK_FLAGS. Bit 31: the global switch. The others are 0.
  std::uint32_t flags;
  std::uint16_t heroSkillKeys0to5[6];
  std::uint16_t itemKeys[6];     // inventory slots of keypad 7, 8, 4, 5, 1, 2
  std::uint16_t showFBlood;      // shows allied health bars
  std::uint16_t showEBlood;      // shows enemy health bars
  std::uint16_t quickChatIndex;  // 0: Alt+1 to Alt+8, 1: Alt+F1 to Alt+F8
  std::uint16_t ledgerKey1;
  std::uint32_t keyRemaps[6];  // high half the key pressed, low half the key sent
  std::uint16_t heroSkillKey6;
  std::uint16_t ledgerKey2;
  std::uint8_t zoomValue;
  std::uint8_t reserved69[11];  // 0
  std::uint16_t comboKeys[4];   // A, B, C and the key sent, D
  std::uint8_t reserved88[24];  // 0
  char quickChat[1024];         // eight UTF-8 phrases, packed, each with a NUL behind it
  std::uint16_t mouseKeys[3];   // wheel up, wheel click, wheel down
  std::uint16_t winLockMouse;   // toggles the cursor lock
  std::uint16_t hotkeyContrl;   // switches the hotkeys on and off in game
  std::uint16_t ledgerKey0;
  std::uint16_t quickChatKey;  // opens quick chat
  char chatWheel[640];         // packed like quickChat
  std::uint16_t chatWheelKey;  // opens the chat wheel
  std::uint16_t heroSkillKeys7to11[5];
  std::uint8_t hideUI;  // this and the following are 0 or 1
  std::uint8_t skillHeroOnly;
  std::uint8_t combokeyHeroOnly;
  std::uint8_t disableLeftAlt;
  std::uint8_t disableLeftAltShowHP;
};

#pragma pack(pop)

// The switches in `flags`: FLAG(bit, name) for each, the name being that of the settings file.
// make update writes this: flags
#define BRENNET_BLOCK_FLAGS(FLAG) \
  FLAG(0, DisableLWinFlag)        \
  FLAG(1, LockMouseFlag)          \
  FLAG(2, ShowFBloodFlag)         \
  FLAG(3, ShowEBloodFlag)         \
  FLAG(4, ViewNoDragFlag)         \
  FLAG(5, StartJSQFlag)           \
  FLAG(7, ShowFManaFlag)
// make update: end

#define BRENNET_BLOCK_OFFSET(field, offset) \
  static_assert(offsetof(HotkeyBlock, field) == (offset), "HotkeyBlock is a wire format: " #field)
static_assert(sizeof(HotkeyBlock) == 1807, "HotkeyBlock is a wire format");
BRENNET_BLOCK_OFFSET(size, 0);
BRENNET_BLOCK_OFFSET(flags, 4);
BRENNET_BLOCK_OFFSET(heroSkillKeys0to5, 8);
BRENNET_BLOCK_OFFSET(itemKeys, 20);
BRENNET_BLOCK_OFFSET(showFBlood, 32);
BRENNET_BLOCK_OFFSET(showEBlood, 34);
BRENNET_BLOCK_OFFSET(quickChatIndex, 36);
BRENNET_BLOCK_OFFSET(ledgerKey1, 38);
BRENNET_BLOCK_OFFSET(keyRemaps, 40);
BRENNET_BLOCK_OFFSET(heroSkillKey6, 64);
BRENNET_BLOCK_OFFSET(ledgerKey2, 66);
BRENNET_BLOCK_OFFSET(zoomValue, 68);
BRENNET_BLOCK_OFFSET(reserved69, 69);
BRENNET_BLOCK_OFFSET(comboKeys, 80);
BRENNET_BLOCK_OFFSET(reserved88, 88);
BRENNET_BLOCK_OFFSET(quickChat, 112);
BRENNET_BLOCK_OFFSET(mouseKeys, 1136);
BRENNET_BLOCK_OFFSET(winLockMouse, 1142);
BRENNET_BLOCK_OFFSET(hotkeyContrl, 1144);
BRENNET_BLOCK_OFFSET(ledgerKey0, 1146);
BRENNET_BLOCK_OFFSET(quickChatKey, 1148);
BRENNET_BLOCK_OFFSET(chatWheel, 1150);
BRENNET_BLOCK_OFFSET(chatWheelKey, 1790);
BRENNET_BLOCK_OFFSET(heroSkillKeys7to11, 1792);
BRENNET_BLOCK_OFFSET(hideUI, 1802);
BRENNET_BLOCK_OFFSET(skillHeroOnly, 1803);
BRENNET_BLOCK_OFFSET(combokeyHeroOnly, 1804);
BRENNET_BLOCK_OFFSET(disableLeftAlt, 1805);
BRENNET_BLOCK_OFFSET(disableLeftAltShowHP, 1806);
#undef BRENNET_BLOCK_OFFSET

}  // namespace brennet

#endif  // BRENNET_HOTKEY_BLOCK_H
