#include "model/BlockFiller.h"

#include <algorithm>
#include <string_view>

#include "markup/text/Utf8.h"
#include "model/BlockBytes.h"
#include "model/KeyConflicts.h"
#include "model/KeySlot.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

constexpr std::size_t kLongestPackedPhrase = 126;  // bytes: 42 characters of three bytes

void packPhrases(const Phrases& phrases, std::span<char> area) {
  std::size_t at = 0;
  for (std::size_t n = 0; n < phrases.size(); ++n) {
    const std::size_t closingNuls = phrases.size() - n;
    const std::size_t room = std::min(kLongestPackedPhrase, area.size() - at - closingNuls);
    if (phrases[n]) at += utf16ToUtf8(*phrases[n], area.subspan(at, room));
    area[at++] = '\0';
  }
  // The conversion may have written behind the last phrase.
  std::fill_n(area.begin() + static_cast<std::ptrdiff_t>(at),
              std::min(kLongestPackedPhrase, area.size() - at), '\0');
}

// Stores one setting of a scheme, by its kind, in a block that was all zero before.
class BlockFiller {
 public:
  BlockFiller(const HotkeyScheme& scheme, BlockBytes bytes) : scheme_(scheme), bytes_(bytes) {}

  void operator()(const SwitchSetting& row) const {
    const std::uint8_t value = scheme_.*row.field;
    if (row.mask == SwitchSetting::kWholeByte) {
      bytes_[row.offset] = value;
    } else if (value != 0) {
      bytes_[row.offset] = static_cast<std::uint8_t>(bytes_[row.offset] | row.mask);
    }
  }

  void operator()(const ByteSetting& row) const { bytes_[row.offset] = scheme_.*row.field; }

  void operator()(const KeySetting& row) const { storeKey(row.offset, scheme_.*row.field); }

  void operator()(const KeyListSetting& row) const {
    if (row.followsPreset && chosenItemPreset(scheme_) != nullptr) return storePreset(row);
    const std::span<const KeyWord> keys = row.keysOf(scheme_);
    if (row.autocast == nullptr) {
      for (std::size_t i = 0; i < keys.size(); ++i) storeKey(row.offsets[i], keys[i]);
      return;
    }
    const std::span<const std::optional<bool>> marks = row.autocastOf(scheme_);
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const KeyWord unmarked = keys[i].without(KeyWord::kQuickCast);
      storeKey(row.offsets[i],
               marks[i].value_or(false) ? unmarked.with(KeyWord::kQuickCast) : unmarked);
    }
  }

  void operator()(const RemapSetting& row) const {
    const auto& remaps = scheme_.*row.field;
    for (std::size_t i = 0; i < remaps.size(); ++i) {
      const KeyRemap& remap = remaps[i];
      if (!remap.Src.isSet() || !remap.Dest.isSet()) continue;
      const std::size_t offset = row.offset + i * kRemapSize;
      store16(bytes_, offset + kRemapSrc, remap.Src.raw());
      store16(bytes_, offset + kRemapDest, remap.Dest.raw());
    }
  }

  // There is a combination if there is a D.
  void operator()(const ComboSetting& row) const {
    const ComboKeys& combo = scheme_.*row.field;
    if (!combo.Key_D.isSet()) return;
    for (std::size_t i = 0; i < std::size(kComboKeys); ++i) {
      storeKey(row.offset + i * sizeof(std::uint16_t), combo.*kComboKeys[i]);
    }
  }

  void operator()(const PresetSetting&) const {}  // shows in the item keys

  void operator()(const QuickChatSetSetting& row) const {
    store16(bytes_, row.offset, static_cast<std::uint16_t>(scheme_.*row.field));
  }

  void operator()(const PhraseSetting& row) const {
    auto* const area = reinterpret_cast<char*>(bytes_.data() + row.offset);
    packPhrases(scheme_.*row.field, {area, row.size});
  }

 private:
  void storeKey(std::size_t offset, KeyWord key) const {
    if (key.isSet()) store16(bytes_, offset, key.raw());
  }

  void storePreset(const KeyListSetting& row) const {
    const ItemPreset& preset = *chosenItemPreset(scheme_);
    for (std::size_t i = 0; i < preset.size(); ++i) {
      store16(bytes_, row.offsets[i], preset[i].raw());
    }
  }

  const HotkeyScheme& scheme_;
  BlockBytes bytes_;
};

}  // namespace

void fillBlock(HotkeyConfig& config, HotkeyBlock& block) {
  block = HotkeyBlock{};
  block.size = sizeof(HotkeyBlock);
  block.flags = config.enable() ? kEnableFlag : 0;
  const BlockFiller filler(config.scheme(), bytesOf(block));
  for (const SettingId id : kBlockOrder) std::visit(filler, setting(id).kind);
  config.markBlockBuilt();
}

}  // namespace brennet
