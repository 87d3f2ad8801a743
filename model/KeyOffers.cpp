#include "model/KeyOffers.h"

#include <algorithm>
#include <utility>

#include "model/DecimalText.h"
#include "model/KeyAssignment.h"

namespace brennet {
namespace {

// Puts a value in place with the checked setter of its kind. A refused value changes nothing.
struct Take {
  HotkeyScheme& scheme;
  KeySlot slot;

  bool operator()(std::monostate) const { return true; }
  bool operator()(KeyWord key) const { return assignKey(scheme, slot, key); }
  bool operator()(const KeyRemap& remap) const {
    return assignRemap(scheme, scheme.HotKey[slot.index / 2U], remap);
  }
  bool operator()(const ComboKeys& keys) const { return assignCombo(scheme, keys); }
};

// The value that is left after a refusal.
struct Clear {
  HotkeyScheme& scheme;
  KeySlot slot;

  void operator()(std::monostate) const {}
  void operator()(KeyWord) const { storeKey(scheme, slot, kNoKey); }
  void operator()(const KeyRemap&) const { scheme.HotKey[slot.index / 2U] = KeyRemap(); }
  void operator()(const ComboKeys&) const { scheme.ComboKey = ComboKeys(); }
};

// Whether the key can be pressed: to the game a key code of 0 is no key.
bool isRealKey(KeyWord key) {
  return key.isSet() && key.virtualKey() != 0;
}

// Whether the text is damaged: not a number of 16 bits, so that it does not say which key was
// meant. (65280 and 0 say that there is none.)
bool isDamaged(KeyWord key, const KeyEntry& entry) {
  if (isRealKey(key) || entry.text.empty()) return false;
  const std::int32_t number = parseDecimal(entry.text);
  return !isDecimal(entry.text) || number < 0 || number > 0xFFFF;
}

}  // namespace

void KeyOffers::offer(KeySlot slot, KeyWord key, KeyEntry entry) {
  make({slot, key, std::move(entry), key});
}

void KeyOffers::offer(std::size_t remap, const KeyRemap& value, KeyEntry source,
                      KeyEntry destination) {
  make({remapSource(remap), value.Src, std::move(source), {}});
  make({remapDestination(remap), value.Dest, std::move(destination), value});
}

void KeyOffers::offer(const ComboKeys& value, std::array<KeyEntry, 4> entries) {
  for (std::uint8_t i = 0; i < kComboTarget.index; ++i) {
    if (entries[i].text.empty()) continue;  // the key that was there before stays
    make({{SettingId::ComboKey, i}, value.*kComboKeys[i], std::move(entries[i]), {}});
  }
  make({kComboTarget, value.Key_D, std::move(entries[kComboTarget.index]), value});
}

void KeyOffers::make(Offer offer) {
  std::erase_if(open_, [&](const Offer& earlier) { return earlier.slot == offer.slot; });
  offer.isRefused = !std::visit(Take{scheme_, offer.slot}, offer.value);
  if (offer.isRefused) std::visit(Clear{scheme_, offer.slot}, offer.value);
  const bool isKeyRefused = offer.isRefused && offer.key.isSet();
  if (isKeyRefused || isDamaged(offer.key, offer.entry)) open_.push_back(std::move(offer));
}

std::optional<KeyConflict> KeyOffers::conflictOf(const Offer& offer) const {
  if (const auto* const keys = std::get_if<ComboKeys>(&offer.value)) {
    return brennet::conflictOf(scheme_, *keys);
  }
  return brennet::conflictOf(scheme_, offer.slot, offer.key);
}

std::vector<KeyOffers::Dropped> KeyOffers::settle() {
  std::vector<Dropped> dropped;
  for (Offer& offer : std::exchange(open_, {})) {
    const bool isRefused =
        offer.isRefused && offer.key.isSet() && !std::visit(Take{scheme_, offer.slot}, offer.value);
    if (isDamaged(offer.key, offer.entry)) {
      dropped.push_back({offer.slot, offer.key, std::move(offer.entry), {}});
    } else if (isRefused && isRealKey(offer.key)) {
      const auto conflict = conflictOf(offer);
      dropped.push_back({offer.slot, offer.key, std::move(offer.entry), conflict});
    }
  }
  std::stable_sort(dropped.begin(), dropped.end(), [](const Dropped& a, const Dropped& b) {
    return a.entry.offset < b.entry.offset;
  });
  return dropped;
}

}  // namespace brennet
