#include "model/SchemeWriter.h"

#include <string>

#include "markup/MarkupDocument.h"
#include "model/DecimalText.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

std::u16string keyText(KeyWord key) {
  return decimalText(key.raw());
}

// Adds one element as the last child of the element at the document's main position.
class SettingWriter {
 public:
  SettingWriter(MarkupDocument& document, const HotkeyScheme& scheme, const HotkeyScheme& current)
      : document_(document), scheme_(scheme), current_(current) {}

  bool write(const Setting& setting) {
    element_ = setting.element;
    return std::visit(*this, setting.kind);
  }

  bool operator()(const SwitchSetting& row) const {
    return addValue(scheme_.*row.field != 0 ? u"1" : u"0");
  }

  bool operator()(const ByteSetting& row) const {
    return addValue(decimalText(scheme_.*row.field));
  }

  bool operator()(const KeySetting& row) const { return addValue(keyText(scheme_.*row.field)); }

  bool operator()(const KeyListSetting& row) const {
    const std::span<const KeyWord> keys = row.keysOf(scheme_);
    bool ok = openList();
    for (std::size_t i = 0; i < keys.size(); ++i) {
      ok = addEntry(u"Key", row.ids[i], keyText(keys[i])) && ok;
      if (row.autocast == nullptr) continue;
      const bool on = row.autocastOf(row.followsPreset ? current_ : scheme_)[i].value_or(false);
      ok = document_.setChildAttrib(u"autocast", on ? u"1" : u"0") && ok;
    }
    return closeList() && ok;
  }

  bool operator()(const RemapSetting& row) const {
    const auto& remaps = scheme_.*row.field;
    bool ok = openList();
    for (std::size_t i = 0; i < remaps.size(); ++i) {
      ok = addEntry(u"Key", i, {}) && document_.intoElem() && ok;
      ok = addChild(u"Src", keyText(remaps[i].Src)) && ok;
      ok = addChild(u"Dest", keyText(remaps[i].Dest)) && ok;
      ok = document_.outOfElem() && ok;
    }
    return closeList() && ok;
  }

  bool operator()(const ComboSetting& row) const {
    const ComboKeys& keys = scheme_.*row.field;
    bool ok = openList();
    ok = addChild(u"Key_A", keyText(keys.Key_A)) && ok;
    ok = addChild(u"Key_B", keyText(keys.Key_B)) && ok;
    ok = addChild(u"Key_C", keyText(keys.Key_C)) && ok;
    ok = addChild(u"Key_D", keyText(keys.Key_D)) && ok;
    return closeList() && ok;
  }

  bool operator()(const PresetSetting& row) const {
    return addValue(decimalText(scheme_.*row.field));
  }

  bool operator()(const QuickChatSetSetting& row) const {
    return addValue(decimalText(scheme_.*row.field));
  }

  bool operator()(const PhraseSetting& row) const {
    const Phrases& phrases = scheme_.*row.field;
    bool ok = openList();
    for (std::size_t i = 0; i < phrases.size(); ++i) {
      if (phrases[i]) ok = addEntry(u"Chat", i, *phrases[i]) && ok;
    }
    return closeList() && ok;
  }

 private:
  bool addChild(std::u16string_view name, std::u16string_view value) const {
    return document_.addElem(name, value, MarkupDocument::kChild);
  }
  bool addValue(std::u16string_view value) const { return addChild(element_, value); }

  bool addEntry(std::u16string_view name, std::size_t id, std::u16string_view value) const {
    return addChild(name, value) &&
           document_.setChildAttrib(u"id", decimalText(static_cast<std::int64_t>(id)));
  }

  bool openList() const { return addChild(element_, {}) && document_.intoElem(); }
  bool closeList() const { return document_.outOfElem(); }

  MarkupDocument& document_;
  const HotkeyScheme& scheme_;
  const HotkeyScheme& current_;
  std::u16string_view element_;
};

}  // namespace

bool writeScheme(MarkupDocument& document, const HotkeyScheme& scheme,
                 const HotkeyScheme& current) {
  SettingWriter writer(document, scheme, current);
  bool ok = true;
  for (const Setting& setting : kSettings) ok = writer.write(setting) && ok;
  return ok;
}

}  // namespace brennet
