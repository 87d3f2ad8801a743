#include "model/BlockMerger.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "markup/text/Utf8.h"
#include "model/BlockBytes.h"
#include "model/KeyAssignment.h"
#include "model/KeyConflicts.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

constexpr std::size_t kLongestReturnedPhrase = 100;  // bytes

// A field without a virtual-key code holds no key; the quick-cast mark is not part of the key.
KeyWord keyAt(ConstBlockBytes bytes, std::size_t offset) {
  const KeyWord raw(load16(bytes, offset));
  if (raw.virtualKey() == 0 || !raw.isSet()) return kNoKey;
  return {raw.virtualKey(), raw.modifiers()};
}

bool markAt(ConstBlockBytes bytes, std::size_t offset) {
  return KeyWord(load16(bytes, offset)).quickCast();
}

KeyRemap remapAt(ConstBlockBytes bytes, std::size_t offset) {
  return {keyAt(bytes, offset + kRemapSrc), keyAt(bytes, offset + kRemapDest)};
}

ComboKeys comboAt(ConstBlockBytes bytes, std::size_t offset) {
  constexpr std::size_t kWidth = sizeof(std::uint16_t);
  return {keyAt(bytes, offset), keyAt(bytes, offset + kWidth), keyAt(bytes, offset + 2 * kWidth),
          keyAt(bytes, offset + 3 * kWidth)};
}

// A bit of the flag word as 0 or 1; a whole byte as it is.
std::uint8_t switchAt(ConstBlockBytes bytes, const SwitchSetting& row) {
  if (row.mask == SwitchSetting::kWholeByte) return bytes[row.offset];
  return (bytes[row.offset] & row.mask) != 0 ? 1 : 0;
}

// The phrases of an area, each ended by a NUL. Those beyond the end of the area are empty.
std::array<std::string_view, kPhrases> splitPhrases(ConstBlockBytes bytes,
                                                    const PhraseSetting& row) {
  std::string_view rest(reinterpret_cast<const char*>(bytes.data() + row.offset), row.size);
  std::array<std::string_view, kPhrases> phrases;
  for (std::string_view& phrase : phrases) {
    phrase = rest.substr(0, rest.find('\0'));
    rest.remove_prefix(std::min(rest.size(), phrase.size() + 1));
  }
  return phrases;
}

// The longest prefix of `phrase` that fits and cuts no character.
std::string_view cutReturned(std::string_view phrase) {
  if (phrase.size() <= kLongestReturnedPhrase) return phrase;
  std::size_t end = kLongestReturnedPhrase;
  while (end > 0 && (static_cast<unsigned char>(phrase[end]) & 0xC0U) == 0x80) --end;
  return phrase.substr(0, end);
}

// The two blocks, how many bytes the game handed back, and the scheme that takes in the
// differences.
struct Merge {
  ConstBlockBytes current;
  ConstBlockBytes returned;
  std::size_t carried;
  HotkeyScheme& scheme;

  [[nodiscard]] bool keyDiffers(std::size_t offset) const {
    return keyAt(current, offset) != keyAt(returned, offset);
  }
  [[nodiscard]] bool remapDiffers(std::size_t offset) const {
    return remapAt(current, offset) != remapAt(returned, offset);
  }
  [[nodiscard]] bool comboDiffers(std::size_t offset) const {
    return comboAt(current, offset) != comboAt(returned, offset);
  }
};

// First pass: every key field that differs gives up its key, so that keys which were swapped do not
// conflict.
struct ClearChangedKeys : Merge {
  void operator()(const KeySetting& row) const {
    if (keyDiffers(row.offset)) scheme.*row.field = kNoKey;
  }
  void operator()(const KeyListSetting& row) const {
    const std::span<KeyWord> keys = row.keys(scheme);
    for (std::size_t i = 0; i < keys.size(); ++i) {
      if (keyDiffers(row.offsets[i])) keys[i] = kNoKey;
    }
  }
  void operator()(const RemapSetting& row) const {
    auto& remaps = scheme.*row.field;
    for (std::size_t i = 0; i < remaps.size(); ++i) {
      if (remapDiffers(row.offset + i * kRemapSize)) remaps[i] = KeyRemap();
    }
  }
  void operator()(const ComboSetting& row) const {
    if (comboDiffers(row.offset)) scheme.*row.field = ComboKeys();
  }
  template <class NoKeys>
  void operator()(const NoKeys&) const {}
};

// Second pass: takes the returned values and notes whether there was a difference. A refused key
// leaves its field without a key.
struct TakeChanges : Merge {
  bool operator()(const SwitchSetting& row) const {
    const std::uint8_t value = switchAt(returned, row);
    if (switchAt(current, row) == value) return false;
    scheme.*row.field = value;
    return true;
  }

  bool operator()(const ByteSetting& row) const {
    if (current[row.offset] == returned[row.offset]) return false;
    scheme.*row.field = returned[row.offset];
    return true;
  }

  bool operator()(const KeySetting& row) const {
    if (!keyDiffers(row.offset)) return false;
    assignKey(scheme, scheme.*row.field, keyAt(returned, row.offset));
    return true;
  }

  bool operator()(const KeyListSetting& row) const {
    bool differs = false;
    const std::span<KeyWord> keys = row.keys(scheme);
    for (std::size_t i = 0; i < keys.size(); ++i) {
      if (keyDiffers(row.offsets[i])) {
        assignKey(scheme, keys[i], keyAt(returned, row.offsets[i]));
        differs = true;
      }
      if (row.autocast != nullptr) differs = takeMark(row, i) || differs;
    }
    return differs;
  }

  bool operator()(const RemapSetting& row) const {
    bool differs = false;
    auto& remaps = scheme.*row.field;
    for (std::size_t i = 0; i < remaps.size(); ++i) {
      const std::size_t offset = row.offset + i * kRemapSize;
      if (!remapDiffers(offset)) continue;
      assignRemap(scheme, remaps[i], remapAt(returned, offset));
      differs = true;
    }
    return differs;
  }

  bool operator()(const ComboSetting& row) const {
    if (!comboDiffers(row.offset)) return false;
    assignCombo(scheme, comboAt(returned, row.offset));
    return true;
  }

  bool operator()(const PresetSetting&) const { return false; }

  bool operator()(const QuickChatSetSetting& row) const {
    const std::uint16_t set = load16(returned, row.offset);
    if (load16(current, row.offset) == set) return false;
    chooseQuickChatKeys(scheme, set);
    return true;
  }

  // Only phrases whose bytes changed are set: the block cuts long ones, the scheme keeps them
  // whole. Phrases that a shorter record does not carry completely stay as they are.
  bool operator()(const PhraseSetting& row) const {
    const auto before = splitPhrases(current, row);
    const auto after = splitPhrases(returned, row);
    for (std::size_t n = 0; n < after.size(); ++n) {
      if (before[n] == after[n] || !isCarried(after[n], row)) continue;
      std::u16string phrase;
      utf8ToUtf16(cutReturned(after[n]), phrase);
      (scheme.*row.field)[n] = cutPhrase(phrase);
    }
    const auto areaOf = [&row](ConstBlockBytes bytes) {
      return std::string_view(reinterpret_cast<const char*>(bytes.data() + row.offset), row.size);
    };
    return areaOf(current) != areaOf(returned);
  }

 private:
  // `phrase` is a part of `returned`.
  [[nodiscard]] bool isCarried(std::string_view phrase, const PhraseSetting& row) const {
    if (carried >= row.offset + row.size) return true;
    const auto* const start = reinterpret_cast<const char*>(returned.data());
    return phrase.data() + phrase.size() < start + carried;
  }

  // A new key brings its mark along. The keys of a preset are sent without marks, so for them only
  // a mark that the game has set means anything.
  bool takeMark(const KeyListSetting& row, std::size_t i) const {
    const std::size_t offset = row.offsets[i];
    const bool mark = markAt(returned, offset);
    const bool differs = markAt(current, offset) != mark;
    const bool deliveredMarks = !(row.followsPreset && chosenItemPreset(scheme) != nullptr);
    if (differs || (deliveredMarks && keyDiffers(offset))) row.autocast(scheme)[i] = mark;
    return differs;
  }
};

}  // namespace

bool mergeBlock(const HotkeyBlock& current, const HotkeyBlock& returned, std::size_t carried,
                HotkeyConfig& config) {
  bool differs = ((current.flags ^ returned.flags) & kEnableFlag) != 0;
  if (differs) config.setEnable((returned.flags & kEnableFlag) != 0);

  // A current scheme that does not exist shows as the defaults; changes to it go nowhere.
  HotkeyScheme nowhere;
  HotkeyScheme* scheme = config.editableScheme();
  const Merge merge{bytesOf(current), bytesOf(returned), carried,
                    scheme != nullptr ? *scheme : nowhere};
  for (const SettingId id : kBlockOrder) std::visit(ClearChangedKeys{merge}, setting(id).kind);
  for (const SettingId id : kBlockOrder) {
    differs = std::visit(TakeChanges{merge}, setting(id).kind) || differs;
  }
  return differs;
}

}  // namespace brennet
