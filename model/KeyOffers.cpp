#include "model/KeyOffers.h"

#include "model/KeyAssignment.h"

namespace brennet {
namespace {

// Puts a value in place, by the checked setter of its kind. A refused one changes nothing.
struct Take {
  HotkeyScheme& scheme;
  KeySlot slot;

  bool operator()(KeyWord key) const { return assignKey(scheme, slot, key); }
  bool operator()(const KeyRemap& remap) const {
    return assignRemap(scheme, scheme.HotKey[slot.index / 2U], remap);
  }
  bool operator()(const ComboKeys& keys) const { return assignCombo(scheme, keys); }
};

// What a refused value leaves.
struct Clear {
  HotkeyScheme& scheme;
  KeySlot slot;

  void operator()(KeyWord) const { storeKey(scheme, slot, kNoKey); }
  void operator()(const KeyRemap&) const { scheme.HotKey[slot.index / 2U] = KeyRemap(); }
  void operator()(const ComboKeys&) const { scheme.ComboKey = ComboKeys(); }
};

}  // namespace

void KeyOffers::offer(KeySlot slot, KeyWord key) {
  make({slot, key, key});
}

void KeyOffers::offer(std::size_t remap, const KeyRemap& value) {
  make({remapDestination(remap), value.Dest, value});
}

void KeyOffers::offer(const ComboKeys& value) {
  make({kComboTarget, value.Key_D, value});
}

void KeyOffers::make(const Offer& offer) {
  std::erase_if(refused_, [&](const Offer& earlier) { return earlier.slot == offer.slot; });
  if (std::visit(Take{scheme_, offer.slot}, offer.value)) return;
  std::visit(Clear{scheme_, offer.slot}, offer.value);
  if (offer.key.isSet()) refused_.push_back(offer);
}

void KeyOffers::offerRefusedAgain() {
  for (const Offer& offer : refused_) std::visit(Take{scheme_, offer.slot}, offer.value);
  refused_.clear();
}

}  // namespace brennet
