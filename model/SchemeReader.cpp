#include "model/SchemeReader.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>

#include "markup/Escaping.h"
#include "markup/MarkupDocument.h"
#include "markup/StartTag.h"
#include "model/DecimalText.h"
#include "model/KeyAssignment.h"
#include "model/KeyOffers.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

// Shift is not a modifier of the game's hotkeys; if a file has it, it is dropped here.
KeyWord keyFromText(std::u16string_view text) {
  return KeyWord(static_cast<std::uint16_t>(parseDecimal(text))).without(KeyWord::kShift);
}

// The number that an attribute says; nothing if it is empty.
std::optional<std::int32_t> numberIn(const MarkupAttribute& attribute) {
  if (attribute.value.empty()) return std::nullopt;
  if (attribute.value.find(u'&') != std::u16string_view::npos) {
    return parseDecimal(unescaped(attribute.value));
  }
  return parseDecimal(attribute.value);
}

// What the start tag of an entry in a list says.
struct EntryTag {
  std::optional<std::size_t> place;  // of its `id` among those of the list
  std::optional<std::int32_t> autocast;
};

// Of two attributes with one name, the first counts.
EntryTag readEntryTag(StartTag tag, std::span<const std::uint16_t> ids) {
  EntryTag entry;
  bool hasId = false;
  bool hasAutocast = false;
  while (const auto attribute = tag.next()) {
    if (!hasId && attribute->name == u"id") {
      hasId = true;
      const auto id = numberIn(*attribute);
      const auto found = id ? std::find(ids.begin(), ids.end(), *id) : ids.end();
      if (found != ids.end()) entry.place = static_cast<std::size_t>(found - ids.begin());
    } else if (!hasAutocast && attribute->name == u"autocast") {
      hasAutocast = true;
      entry.autocast = numberIn(*attribute);
    }
  }
  return entry;
}

// Reads the element of the setting `id` at the document's main position, by the kind of the
// setting. Empty text counts as missing.
class SettingReader {
 public:
  SettingReader(MarkupDocument& document, HotkeyScheme& scheme, KeyOffers& offers,
                std::vector<DroppedChoice>& droppedChoices, SettingId id)
      : document_(document),
        scheme_(scheme),
        offers_(offers),
        droppedChoices_(droppedChoices),
        id_(id) {}

  void operator()(const SwitchSetting& row) {
    const std::u16string_view text = document_.getData(buffer_);
    if (!text.empty()) scheme_.*row.field = parseDecimal(text) == 1 ? 1 : 0;
  }

  void operator()(const ByteSetting& row) {
    const std::u16string_view text = document_.getData(buffer_);
    if (!text.empty()) scheme_.*row.field = static_cast<std::uint8_t>(parseDecimal(text));
  }

  void operator()(const KeySetting&) const {
    KeyEntry entry{id_, document_.getData(), *document_.mainOffset()};
    if (entry.text.empty()) return;
    const KeyWord key = keyFromText(entry.text);
    offers_.offer(KeySlot{id_}, key, std::move(entry));
  }

  void operator()(const KeyListSetting& row) {
    while (document_.findChildElem(u"Key")) {
      const EntryTag entry = readEntryTag(document_.childTag(), row.ids);
      if (!entry.place) continue;
      if (row.autocast != nullptr && entry.autocast) {
        row.autocast(scheme_)[*entry.place] = *entry.autocast != 0;
      }
      const std::u16string_view text = document_.getChildData(buffer_);
      if (text.empty()) continue;
      offers_.offer(KeySlot{id_, static_cast<std::uint8_t>(*entry.place)}, keyFromText(text),
                    {id_, std::u16string(text), *document_.childOffset()});
    }
  }

  void operator()(const RemapSetting&) const {
    constexpr std::uint16_t kIds[kKeyRemaps] = {0, 1, 2, 3, 4, 5};
    while (document_.findChildElem(u"Key")) {
      const EntryTag entry = readEntryTag(document_.childTag(), kIds);
      if (entry.place) readRemap(*entry.place);
    }
  }

  void operator()(const ComboSetting&) const {
    constexpr std::u16string_view kNames[] = {u"Key_A", u"Key_B", u"Key_C", u"Key_D"};
    ComboKeys keys = scheme_.ComboKey;
    document_.intoElem();
    std::array<KeyEntry, std::size(kNames)> entries;
    bool any = false;
    for (std::size_t i = 0; i < entries.size(); ++i) {
      any = readKey(kNames[i], keys.*kComboKeys[i], entries[i]) || any;
    }
    document_.outOfElem();
    if (any) offers_.offer(keys, std::move(entries));
  }

  void operator()(const PresetSetting&) const {
    std::u16string text = document_.getData();
    if (text.empty()) return;
    const std::int32_t preset = parseDecimal(text);
    if (choosePreset(scheme_, preset)) return;
    dropChoice(std::move(text), takenKeysOfPreset(scheme_, preset));
  }

  void operator()(const QuickChatSetSetting&) const {
    std::u16string text = document_.getData();
    if (text.empty()) return;
    const auto set = static_cast<std::uint32_t>(parseDecimal(text));
    if (chooseQuickChatKeys(scheme_, set)) return;
    dropChoice(std::move(text), takenQuickChatKeys(scheme_, set));
  }

  // A phrase without text is a phrase that the player has emptied.
  void operator()(const PhraseSetting& row) const {
    constexpr std::uint16_t kIds[kPhrases] = {0, 1, 2, 3, 4, 5, 6, 7};
    while (document_.findChildElem(u"Chat")) {
      const EntryTag entry = readEntryTag(document_.childTag(), kIds);
      if (entry.place) (scheme_.*row.field)[*entry.place] = cutPhrase(document_.getChildData());
    }
  }

 private:
  void dropChoice(std::u16string text, std::vector<TakenKey> taken) const {
    droppedChoices_.push_back({.setting = id_, .text = std::move(text), .taken = std::move(taken)});
  }

  // Reads the child `name` of the entered element, wherever it is; false if it is missing.
  bool readKey(std::u16string_view name, KeyWord& key, KeyEntry& entry) const {
    document_.resetMainPos();
    if (!document_.findElem(name)) return false;
    entry = {id_, document_.getData(), *document_.mainOffset()};
    if (!entry.text.empty()) key = keyFromText(entry.text);
    return !entry.text.empty();
  }

  // Reads the remap in the element at the child position. Both of its keys must be there.
  void readRemap(std::size_t n) const {
    KeyRemap remap;
    document_.intoElem();
    document_.intoElem();
    KeyEntry source;
    KeyEntry destination;
    const bool complete =
        readKey(u"Src", remap.Src, source) && readKey(u"Dest", remap.Dest, destination);
    document_.outOfElem();
    document_.outOfElem();
    if (complete) offers_.offer(n, remap, std::move(source), std::move(destination));
  }

  MarkupDocument& document_;
  HotkeyScheme& scheme_;
  KeyOffers& offers_;
  std::vector<DroppedChoice>& droppedChoices_;
  SettingId id_;
  std::u16string buffer_;
};

// Moves to the element of a setting: forward from the one read last, then once from the first
// child. The hero skill keys are searched for forward only.
bool findSetting(MarkupDocument& document, SettingId id) {
  const std::u16string_view element = setting(id).element;
  if (document.findElem(element)) return true;
  if (id == SettingId::HeroSkillKey) return false;
  document.resetMainPos();
  return document.findElem(element);
}

}  // namespace

LoadReport readScheme(MarkupDocument& document, HotkeyScheme& scheme) {
  KeyOffers offers(scheme);
  LoadReport report;
  for (const SettingId id : kLoadOrder) {
    if (!findSetting(document, id)) continue;
    SettingReader reader(document, scheme, offers, report.droppedChoices, id);
    std::visit(reader, setting(id).kind);
  }
  for (KeyOffers::Dropped& key : offers.settle()) {
    report.droppedKeys.push_back({.slot = key.slot,
                                  .element = key.entry.element,
                                  .key = key.key,
                                  .text = std::move(key.entry.text),
                                  .conflict = key.conflict,
                                  .position = positionAt(document.doc(), key.entry.offset)});
  }
  return report;
}

}  // namespace brennet
