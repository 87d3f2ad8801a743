#include "cli/RecordFields.h"

#include <algorithm>
#include <utility>

#include "brennet/HotkeyBlock.h"
#include "keys/KeyWord.h"
#include "model/LoadWords.h"

namespace brennet::cli {
namespace {

std::uint32_t number(std::string_view bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = bytes.size(); i-- > 0;) {
    value = value << 8U | static_cast<unsigned char>(bytes[i]);
  }
  return value;
}

std::string numberText(std::string_view bytes) {
  return std::to_string(number(bytes));
}

// In a record 0 is no key; what a load calls no key is none either.
std::string keyText(std::uint32_t raw) {
  const KeyWord key(static_cast<std::uint16_t>(raw));
  if (raw == 0 || !key.isSet()) return "-";
  return nameOrNumber(key.without(KeyWord::kQuickCast)) + (key.quickCast() ? " (quick cast)" : "");
}

std::string keyOf(std::string_view bytes) {
  return keyText(number(bytes));
}

std::string remapOf(std::string_view bytes) {
  const std::string sent = keyOf(bytes.substr(0, 2));
  return sent == "-" ? sent : keyOf(bytes.substr(2)) + " sends " + sent;
}

std::string switchOf(std::string_view bytes) {
  return bytes[0] != 0 ? "on" : "off";
}

struct Flag {
  unsigned bit;
  const char* name;
};

#define FLAG_ROW(bit, name) {bit, #name},
constexpr Flag kFlags[] = {BRENNET_BLOCK_FLAGS(FLAG_ROW){31, "enabled"}};
#undef FLAG_ROW

std::string flagsOf(std::string_view bytes) {
  std::string text;
  for (const Flag& flag : kFlags) {
    if ((number(bytes) >> flag.bit & 1U) == 0) continue;
    text += (text.empty() ? "" : ", ") + std::string(flag.name);
  }
  return text.empty() ? "none" : text;
}

std::string quickChatKeysOf(std::string_view bytes) {
  return number(bytes) == 0 ? "Alt+1 to Alt+8" : "Alt+F1 to Alt+F8";
}

// Eight phrases, each with a zero byte behind it.
std::string phrasesOf(std::string_view bytes) {
  constexpr int kPhrases = 8;
  std::string text;
  for (int i = 0; i < kPhrases; ++i) {
    const std::string_view phrase = bytes.substr(0, bytes.find('\0'));
    text += (i == 0 ? "" : " | ") + std::string(phrase);
    bytes.remove_prefix(std::min(phrase.size() + 1, bytes.size()));
  }
  return text;
}

std::string unusedOf(std::string_view bytes) {
  const bool isZero = std::ranges::all_of(bytes, [](char byte) { return byte == 0; });
  return isZero ? "unused" : "unused, and not 0";
}

// `count` fields of `size` bytes each, side by side. If there are several, they are numbered from
// `first`.
struct FieldRow {
  std::size_t offset;
  std::size_t size;
  const char* name;
  std::string (*meaning)(std::string_view bytes);
  std::size_t count = 1;
  std::size_t first = 1;
};

using Block = HotkeyBlock;

constexpr FieldRow kFields[] = {
    {offsetof(Block, size), 4, "size", numberText},
    {offsetof(Block, flags), 4, "flags", flagsOf},
    {offsetof(Block, heroSkillKeys0to5), 2, "hero skill", keyOf, 6},
    {offsetof(Block, itemKeys), 2, "item", keyOf, 6},
    {offsetof(Block, showFBlood), 2, "allied health bars", keyOf},
    {offsetof(Block, showEBlood), 2, "enemy health bars", keyOf},
    {offsetof(Block, quickChatIndex), 2, "quick-chat keys", quickChatKeysOf},
    {offsetof(Block, ledgerKey1), 2, "Ledger key 2", keyOf},
    {offsetof(Block, keyRemaps), 4, "remap", remapOf, 6},
    {offsetof(Block, heroSkillKey6), 2, "hero skill 7", keyOf},
    {offsetof(Block, ledgerKey2), 2, "Ledger key 3", keyOf},
    {offsetof(Block, zoomValue), 1, "zoom", numberText},
    {offsetof(Block, reserved69), 11, "reserved", unusedOf},
    {offsetof(Block, comboKeys), 2, "combination key", keyOf, 4},
    {offsetof(Block, reserved88), 24, "reserved", unusedOf},
    {offsetof(Block, quickChat), 1024, "quick-chat phrases", phrasesOf},
    {offsetof(Block, mouseKeys), 2, "mouse key", keyOf, 3},
    {offsetof(Block, winLockMouse), 2, "cursor lock", keyOf},
    {offsetof(Block, hotkeyContrl), 2, "hotkeys on and off", keyOf},
    {offsetof(Block, ledgerKey0), 2, "Ledger key 1", keyOf},
    {offsetof(Block, quickChatKey), 2, "quick chat", keyOf},
    {offsetof(Block, chatWheel), 640, "chat-wheel phrases", phrasesOf},
    {offsetof(Block, chatWheelKey), 2, "chat wheel", keyOf},
    {offsetof(Block, heroSkillKeys7to11), 2, "hero skill", keyOf, 5, 8},
    {offsetof(Block, hideUI), 1, "HideUI", switchOf},
    {offsetof(Block, skillHeroOnly), 1, "SkillHeroOnly", switchOf},
    {offsetof(Block, combokeyHeroOnly), 1, "CombokeyHeroOnly", switchOf},
    {offsetof(Block, disableLeftAlt), 1, "DisableLeftAlt", switchOf},
    {offsetof(Block, disableLeftAltShowHP), 1, "DisableLeftAltShowHP", switchOf},
};

constexpr bool rowsCoverTheRecord() {
  std::size_t at = 0;
  for (const FieldRow& row : kFields) {
    if (row.offset != at) return false;
    at += row.size * row.count;
  }
  return at == sizeof(Block);
}
static_assert(rowsCoverTheRecord(), "give every field of HotkeyBlock a row, in their order");

}  // namespace

std::vector<RecordField> explainRecord(std::string_view record) {
  std::vector<RecordField> fields;
  for (const FieldRow& row : kFields) {
    for (std::size_t i = 0; i < row.count; ++i) {
      const std::size_t offset = row.offset + i * row.size;
      if (offset + row.size > record.size()) return fields;
      std::string name = row.name;
      if (row.count > 1) name += " " + std::to_string(row.first + i);
      fields.push_back(
          {offset, row.size, std::move(name), row.meaning(record.substr(offset, row.size))});
    }
  }
  return fields;
}

}  // namespace brennet::cli
