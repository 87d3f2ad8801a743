#include "model/HotkeyConfig.h"

#include <algorithm>
#include <string>
#include <utility>

#include "model/KeyAssignment.h"
#include "model/SchemeAssignment.h"

namespace brennet {
namespace {

bool isIndex(int n, std::size_t count) {
  return n >= 0 && static_cast<std::size_t>(n) < count;
}

template <std::size_t Count>
bool setKey(HotkeyScheme* scheme, std::array<KeyWord, Count> HotkeyScheme::*keys, int n,
            KeyWord key, bool check) {
  if (scheme == nullptr || !isIndex(n, Count)) return false;
  KeyWord& field = (scheme->*keys)[static_cast<std::size_t>(n)];
  if (check) return assignKey(*scheme, field, key);
  field = key;
  return true;
}

bool setPhrase(HotkeyScheme* scheme, Phrases HotkeyScheme::*phrases, std::uint32_t n,
               char16_t* text) {
  if (scheme == nullptr || n >= kPhrases) return false;
  const std::u16string_view whole = text != nullptr ? text : std::u16string_view();
  const std::u16string_view kept = cutPhrase(whole);
  std::fill(text + kept.size(), text + whole.size(), u'\0');
  (scheme->*phrases)[n] = kept;
  return true;
}

bool getKey(KeyWord key, KeyWord* out) {
  if (out == nullptr) return false;
  *out = key;
  return true;
}

KeyWord lowKey(std::uint32_t keys) {
  return KeyWord(static_cast<std::uint16_t>(keys & 0xFFFFU));
}
KeyWord highKey(std::uint32_t keys) {
  return KeyWord(static_cast<std::uint16_t>(keys >> 16U));
}

int slotNumber(int slotCode) {
  const std::optional<std::size_t> slot = itemSlotIndex(slotCode);
  return slot ? static_cast<int>(*slot) : -1;
}

}  // namespace

HotkeyConfig::HotkeyConfig(const HotkeyConfig& other) {
  copyFrom(other, assigned({}, other.schemes_));
}

HotkeyConfig HotkeyConfig::operator=(const HotkeyConfig& other) {
  if (this != &other) copyFrom(other, assigned(schemes_, other.schemes_));
  return other;
}

// The schemes are made before anything changes: if memory runs out, this object stays whole.
HotkeyConfig::Schemes HotkeyConfig::assigned(Schemes target, const Schemes& source) {
  for (std::size_t i = 0; i < target.size(); ++i) assignScheme(target[i], source[i]);
  return target;
}

void HotkeyConfig::copyFrom(const HotkeyConfig& other, Schemes schemes) {
  enable_ = other.enable_;
  index_ = other.index_;
  lastSaveTime_ = other.lastSaveTime_;
  schemes_ = std::move(schemes);
}

void HotkeyConfig::Reset() {
  loaded_ = false;
  lastSaveTime_ = 0;
  enable_ = false;
  index_ = 0;
  for (HotkeyScheme& scheme : schemes_) resetScheme(scheme);
  loadReport_ = {};
  blockBuilt_ = false;
  blockBuffer_ = HotkeyBlock{};
}

void HotkeyConfig::ResetAndCopyFrom(const HotkeyConfig& main) {
  if (this == &main) return;
  Schemes schemes = schemes_;
  for (HotkeyScheme& scheme : schemes) resetScheme(scheme);
  schemes = assigned(std::move(schemes), main.schemes_);
  Reset();
  copyFrom(main, std::move(schemes));
}

void HotkeyConfig::swap(HotkeyConfig& other) noexcept {
  std::swap(loaded_, other.loaded_);
  std::swap(lastSaveTime_, other.lastSaveTime_);
  std::swap(enable_, other.enable_);
  std::swap(index_, other.index_);
  std::swap(schemes_, other.schemes_);
  std::swap(blockBuilt_, other.blockBuilt_);
  std::swap(blockBuffer_, other.blockBuffer_);
}

bool HotkeyConfig::SetHeroSkillKey(int pos, KeyWord key, bool check, int scheme) {
  return setKey(editableScheme(scheme), &HotkeyScheme::HeroSkillKey, pos, key, check);
}

bool HotkeyConfig::SetItemKey(int slotCode, KeyWord key, bool check, int scheme) {
  const int slot = slotNumber(slotCode);
  return setKey(editableScheme(scheme), &HotkeyScheme::ItemKey, slot, key, check);
}

bool HotkeyConfig::SetMouseKey(int n, KeyWord key, bool check, int scheme) {
  return setKey(editableScheme(scheme), &HotkeyScheme::MouseKey, n, key, check);
}

bool HotkeyConfig::SetSecretaryKey(int n, KeyWord key, bool check, int scheme) {
  return setKey(editableScheme(scheme), &HotkeyScheme::SecretaryKey, n, key, check);
}

bool HotkeyConfig::SetKeyRemap(int n, std::uint32_t srcDest, bool check, int scheme) {
  HotkeyScheme* edited = editableScheme(scheme);
  if (edited == nullptr || !isIndex(n, kKeyRemaps)) return false;
  KeyRemap& field = edited->HotKey[static_cast<std::size_t>(n)];
  if (check) return assignRemap(*edited, field, KeyRemap(srcDest));
  field = KeyRemap(srcDest);
  return true;
}

bool HotkeyConfig::SetComboKeys(bool check, int scheme, std::uint32_t keysAB,
                                std::uint32_t keysCD) {
  HotkeyScheme* edited = editableScheme(scheme);
  if (edited == nullptr) return false;
  const ComboKeys keys{lowKey(keysAB), highKey(keysAB), lowKey(keysCD), highKey(keysCD)};
  if (check) return assignCombo(*edited, keys);
  edited->ComboKey = keys;
  return true;
}

bool HotkeyConfig::SetNumComboKeyIndex(std::int32_t mode, int scheme) {
  HotkeyScheme* edited = editableScheme(scheme);
  return edited != nullptr && choosePreset(*edited, mode);
}

bool HotkeyConfig::SetQuickChatIndex(std::uint32_t set, int scheme) {
  HotkeyScheme* edited = editableScheme(scheme);
  return edited != nullptr && chooseQuickChatKeys(*edited, set);
}

bool HotkeyConfig::SetQuickChatPhrase(std::uint32_t n, char16_t* text, int scheme) {
  return setPhrase(editableScheme(scheme), &HotkeyScheme::QuickChat, n, text);
}

bool HotkeyConfig::SetChatWheelPhrase(std::uint32_t n, char16_t* text, int scheme) {
  return setPhrase(editableScheme(scheme), &HotkeyScheme::ChatWheel, n, text);
}

bool HotkeyConfig::SetHeroSkillAutocast(int pos, bool on, int scheme) {
  HotkeyScheme* edited = editableScheme(scheme);
  if (edited == nullptr || !isIndex(pos, kHeroSkills)) return false;
  edited->HeroSkillAutocast[static_cast<std::size_t>(pos)] = on;
  return true;
}

bool HotkeyConfig::SetItemAutocast(int slotCode, bool on, int scheme) {
  HotkeyScheme* edited = editableScheme(scheme);
  const std::optional<std::size_t> slot = itemSlotIndex(slotCode);
  if (edited == nullptr || !slot) return false;
  edited->ItemAutocast[*slot] = on;
  return true;
}

bool HotkeyConfig::GetItemKey(int slotCode, KeyWord* out, int scheme) const {
  const std::optional<std::size_t> slot = itemSlotIndex(slotCode);
  return slot && getKey(this->scheme(scheme).ItemKey[*slot], out);
}

bool HotkeyConfig::GetItemAutocast(int slotCode, bool* out, int scheme) const {
  const std::optional<std::size_t> slot = itemSlotIndex(slotCode);
  if (!slot || out == nullptr) return false;
  const std::optional<bool>& mark = this->scheme(scheme).ItemAutocast[*slot];
  if (mark) *out = *mark;
  return mark.has_value();
}

bool HotkeyConfig::GetShowFBlood(KeyWord* out, int scheme) const {
  return getKey(this->scheme(scheme).ShowFBlood, out);
}

bool HotkeyConfig::GetShowEBlood(KeyWord* out, int scheme) const {
  return getKey(this->scheme(scheme).ShowEBlood, out);
}

bool HotkeyConfig::GetWinLockMouse(KeyWord* out, int scheme) const {
  return getKey(this->scheme(scheme).WinLockMouse, out);
}

const HotkeyScheme& HotkeyConfig::scheme(int scheme) const {
  static const HotkeyScheme defaults;
  const std::uint32_t n = scheme == kCurrentScheme ? index_ : static_cast<std::uint32_t>(scheme);
  return n < schemes_.size() ? schemes_[n] : defaults;
}

HotkeyScheme* HotkeyConfig::editableScheme(int scheme) {
  const std::uint32_t n = scheme == kCurrentScheme ? index_ : static_cast<std::uint32_t>(scheme);
  return n < schemes_.size() ? &schemes_[n] : nullptr;
}

bool HotkeyConfig::setIndex(std::uint32_t index) {
  if (index > kLargestIndex) return false;
  index_ = index;
  return true;
}

}  // namespace brennet
