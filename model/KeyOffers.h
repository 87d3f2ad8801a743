#pragma once

#include <variant>
#include <vector>

#include "model/HotkeyScheme.h"
#include "model/KeySlot.h"

namespace brennet {

// The keys of a settings file, offered to the scheme that is being read.
//
// Which keys a scheme refuses depends on its choice of quick-chat keys and of item keys, and a file
// tells of those in the middle. So a key that is refused meanwhile is offered once more when all is
// read: what the player was allowed to choose comes back, in whatever order the file has it.
class KeyOffers {
 public:
  // `scheme` has to outlive this object.
  explicit KeyOffers(HotkeyScheme& scheme) : scheme_(scheme) {}

  // Each puts the value in place (KeyAssignment.h), or no key where it is refused. Only the last
  // offer for a slot counts. `slot` holds one key; `remap` is the number of one, from 0.
  void offer(KeySlot slot, KeyWord key);
  void offer(std::size_t remap, const KeyRemap& value);
  void offer(const ComboKeys& value);

  // Offers once more, in the order of the refusals, what was refused and is a key: a remap by its
  // destination, a combination by key D. What is refused now stays without a key.
  void offerRefusedAgain();

 private:
  struct Offer {
    KeySlot slot;  // the key that is checked
    KeyWord key;
    std::variant<KeyWord, KeyRemap, ComboKeys> value;
  };

  void make(const Offer& offer);

  HotkeyScheme& scheme_;
  std::vector<Offer> refused_;
};

}  // namespace brennet
