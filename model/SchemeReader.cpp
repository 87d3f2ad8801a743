#include "model/SchemeReader.h"

#include <algorithm>
#include <string>

#include "markup/MarkupDocument.h"
#include "model/DecimalText.h"
#include "model/KeyAssignment.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

// Shift is no modifier of the game's hotkeys; files that carry it lose it here.
KeyWord keyFromText(std::u16string_view text) {
  return KeyWord(static_cast<std::uint16_t>(parseDecimal(text))).without(KeyWord::kShift);
}

void takeOrClear(const HotkeyScheme& scheme, KeyWord& field, KeyWord key) {
  if (!assignKey(scheme, field, key)) field = kNoKey;
}

// The position of the child's `id` among `ids`; nothing when it is empty or not one of them.
std::optional<std::size_t> childNumber(const MarkupDocument& document,
                                       std::span<const std::uint16_t> ids) {
  const std::u16string text = document.getChildAttrib(u"id");
  if (text.empty()) return std::nullopt;
  const auto found = std::find(ids.begin(), ids.end(), parseDecimal(text));
  if (found == ids.end()) return std::nullopt;
  return static_cast<std::size_t>(found - ids.begin());
}

// Reads the element at the document's main position, by the kind of its setting. Empty text counts
// as missing.
class SettingReader {
 public:
  SettingReader(MarkupDocument& document, HotkeyScheme& scheme)
      : document_(document), scheme_(scheme) {}

  void operator()(const SwitchSetting& row) const {
    const std::u16string text = document_.getData();
    if (!text.empty()) scheme_.*row.field = parseDecimal(text) == 1 ? 1 : 0;
  }

  void operator()(const ByteSetting& row) const {
    const std::u16string text = document_.getData();
    if (!text.empty()) scheme_.*row.field = static_cast<std::uint8_t>(parseDecimal(text));
  }

  void operator()(const KeySetting& row) const {
    const std::u16string text = document_.getData();
    if (!text.empty()) takeOrClear(scheme_, scheme_.*row.field, keyFromText(text));
  }

  void operator()(const KeyListSetting& row) const {
    const std::span<KeyWord> keys = row.keys(scheme_);
    while (document_.findChildElem(u"Key")) {
      const std::optional<std::size_t> n = childNumber(document_, row.ids);
      if (!n) continue;
      if (row.autocast != nullptr) readAutocast(row.autocast(scheme_)[*n]);
      const std::u16string text = document_.getChildData();
      if (!text.empty()) takeOrClear(scheme_, keys[*n], keyFromText(text));
    }
  }

  void operator()(const RemapSetting&) const {
    constexpr std::uint16_t kIds[kKeyRemaps] = {0, 1, 2, 3, 4, 5};
    while (document_.findChildElem(u"Key")) {
      const std::optional<std::size_t> n = childNumber(document_, kIds);
      if (n) readRemap(scheme_.HotKey[*n]);
    }
  }

  void operator()(const ComboSetting&) const {
    ComboKeys keys = scheme_.ComboKey;
    document_.intoElem();
    readKey(u"Key_A", keys.Key_A);
    readKey(u"Key_B", keys.Key_B);
    readKey(u"Key_C", keys.Key_C);
    readKey(u"Key_D", keys.Key_D);
    document_.outOfElem();
    if (!assignCombo(scheme_, keys)) scheme_.ComboKey = ComboKeys();
  }

  void operator()(const PresetSetting&) const {
    const std::u16string text = document_.getData();
    if (!text.empty()) choosePreset(scheme_, parseDecimal(text));
  }

  void operator()(const QuickChatSetSetting&) const {
    const std::u16string text = document_.getData();
    if (!text.empty()) {
      chooseQuickChatKeys(scheme_, static_cast<std::uint32_t>(parseDecimal(text)));
    }
  }

  // A phrase without text is a phrase that the player has emptied.
  void operator()(const PhraseSetting& row) const {
    constexpr std::uint16_t kIds[kPhrases] = {0, 1, 2, 3, 4, 5, 6, 7};
    while (document_.findChildElem(u"Chat")) {
      const std::optional<std::size_t> n = childNumber(document_, kIds);
      if (n) (scheme_.*row.field)[*n] = cutPhrase(document_.getChildData());
    }
  }

 private:
  void readAutocast(std::optional<bool>& mark) const {
    const std::u16string text = document_.getChildAttrib(u"autocast");
    if (!text.empty()) mark = parseDecimal(text) != 0;
  }

  // Reads the child `name` of the entered element, wherever it stands; false where it is missing.
  bool readKey(std::u16string_view name, KeyWord& key) const {
    document_.resetMainPos();
    if (!document_.findElem(name)) return false;
    const std::u16string text = document_.getData();
    if (!text.empty()) key = keyFromText(text);
    return !text.empty();
  }

  // Reads the remap in the element at the child position. Both of its keys must be there.
  void readRemap(KeyRemap& field) const {
    KeyRemap remap;
    document_.intoElem();
    document_.intoElem();
    const bool complete = readKey(u"Src", remap.Src) && readKey(u"Dest", remap.Dest);
    document_.outOfElem();
    document_.outOfElem();
    if (complete && !assignRemap(scheme_, field, remap)) field = KeyRemap();
  }

  MarkupDocument& document_;
  HotkeyScheme& scheme_;
};

// Moves to the element of a setting: forward from the one read last, else once from the first
// child. The hero skill keys are searched forward only.
bool findSetting(MarkupDocument& document, SettingId id) {
  const std::u16string_view element = setting(id).element;
  if (document.findElem(element)) return true;
  if (id == SettingId::HeroSkillKey) return false;
  document.resetMainPos();
  return document.findElem(element);
}

}  // namespace

void readScheme(MarkupDocument& document, HotkeyScheme& scheme) {
  const SettingReader reader(document, scheme);
  for (const SettingId id : loadOrder()) {
    if (findSetting(document, id)) std::visit(reader, setting(id).kind);
  }
}

}  // namespace brennet
