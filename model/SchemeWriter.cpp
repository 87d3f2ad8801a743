#include "model/SchemeWriter.h"

#include <iterator>
#include <string_view>

#include "markup/MarkupDocument.h"
#include "markup/MarkupWriter.h"
#include "model/DecimalText.h"
#include "model/KeySlot.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

// Writes one element.
class SettingWriter {
 public:
  SettingWriter(MarkupWriter& writer, const HotkeyScheme& scheme, const HotkeyScheme& current)
      : writer_(writer), scheme_(scheme), current_(current) {}

  void write(const Setting& setting) {
    writer_.open(setting.element);
    std::visit(*this, setting.kind);
    writer_.close();
  }

  void operator()(const SwitchSetting& row) const { number(scheme_.*row.field != 0 ? 1 : 0); }
  void operator()(const ByteSetting& row) const { number(scheme_.*row.field); }
  void operator()(const KeySetting& row) const { number((scheme_.*row.field).raw()); }
  void operator()(const PresetSetting& row) const { number(scheme_.*row.field); }
  void operator()(const QuickChatSetSetting& row) const { number(scheme_.*row.field); }

  void operator()(const KeyListSetting& row) const {
    const std::span<const KeyWord> keys = row.keysOf(scheme_);
    for (std::size_t i = 0; i < keys.size(); ++i) {
      openEntry(u"Key", row.ids[i]);
      if (row.autocast != nullptr) {
        const bool on = row.autocastOf(row.followsPreset ? current_ : scheme_)[i].value_or(false);
        writer_.attribute(u"autocast", on ? u"1" : u"0");
      }
      number(keys[i].raw());
      writer_.close();
    }
  }

  void operator()(const RemapSetting& row) const {
    const auto& remaps = scheme_.*row.field;
    for (std::size_t i = 0; i < remaps.size(); ++i) {
      openEntry(u"Key", i);
      key(u"Src", remaps[i].Src);
      key(u"Dest", remaps[i].Dest);
      writer_.close();
    }
  }

  void operator()(const ComboSetting& row) const {
    constexpr std::u16string_view kNames[] = {u"Key_A", u"Key_B", u"Key_C", u"Key_D"};
    const ComboKeys& keys = scheme_.*row.field;
    for (std::size_t i = 0; i < std::size(kNames); ++i) key(kNames[i], keys.*kComboKeys[i]);
  }

  void operator()(const PhraseSetting& row) const {
    const Phrases& phrases = scheme_.*row.field;
    for (std::size_t i = 0; i < phrases.size(); ++i) {
      if (!phrases[i]) continue;
      openEntry(u"Chat", i);
      writer_.text(*phrases[i]);
      writer_.close();
    }
  }

 private:
  void number(std::int64_t value) const { writer_.text(DecimalDigits(value)); }

  void key(std::u16string_view name, KeyWord key) const {
    writer_.element(name, DecimalDigits(key.raw()));
  }

  void openEntry(std::u16string_view name, std::size_t id) const {
    writer_.open(name);
    writer_.attribute(u"id", DecimalDigits(static_cast<std::int64_t>(id)));
  }

  MarkupWriter& writer_;
  const HotkeyScheme& scheme_;
  const HotkeyScheme& current_;
};

}  // namespace

bool writeScheme(MarkupDocument& document, const HotkeyScheme& scheme,
                 const HotkeyScheme& current) {
  MarkupWriter writer;
  SettingWriter settings(writer, scheme, current);
  for (const Setting& setting : kSettings) settings.write(setting);
  return document.addChildren(writer);
}

}  // namespace brennet
