#pragma once

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/HotkeyScheme.h"
#include "model/KeyConflicts.h"
#include "model/KeySlot.h"

namespace brennet {

// Where a settings file names a key.
struct KeyEntry {
  SettingId element = SettingId::HeroSkillKey;
  std::u16string text;     // empty where the file has none
  std::size_t offset = 0;  // of the element with the text, in the text of the document
};

// The keys of a settings file, offered to the scheme that is being read.
//
// Which keys a scheme refuses depends on its choice of quick-chat keys and of item keys, which come
// in the middle of a file. So a key that was refused is offered once more when everything has been
// read: what the player was allowed to choose comes back, in whatever order the file has it.
class KeyOffers {
 public:
  // A key that came to nothing.
  struct Dropped {
    KeySlot slot;  // of a refused remap its destination, of a refused combination key D
    KeyWord key;
    KeyEntry entry;
    std::optional<KeyConflict> conflict;  // nothing where the text is damaged
  };

  // `scheme` has to outlive this object.
  explicit KeyOffers(HotkeyScheme& scheme) : scheme_(scheme) {}

  // Each puts the value in place (KeyAssignment.h), or no key if it is refused. Only the last offer
  // for a slot counts. `slot` holds one key; `remap` is the number of a remap, from 0. The entries
  // of a combination are those of A to D.
  void offer(KeySlot slot, KeyWord key, KeyEntry entry);
  void offer(std::size_t remap, const KeyRemap& value, KeyEntry source, KeyEntry destination);
  void offer(const ComboKeys& value, std::array<KeyEntry, 4> entries);

  // Offers once more, in the order of the refusals, what was refused and is a key: of a remap the
  // destination, of a combination key D. What is refused again stays without a key. Returns what
  // came to nothing, in the order of the document, but not what the file itself calls no key.
  [[nodiscard]] std::vector<Dropped> settle();

 private:
  // A key that is only pressed has no value of its own here: it comes with its remap or
  // combination.
  using Value = std::variant<std::monostate, KeyWord, KeyRemap, ComboKeys>;
  struct Offer {
    KeySlot slot;
    KeyWord key;
    KeyEntry entry;
    Value value;
    bool isRefused = false;
  };

  void make(Offer offer);
  [[nodiscard]] std::optional<KeyConflict> conflictOf(const Offer& offer) const;

  HotkeyScheme& scheme_;
  std::vector<Offer> open_;  // the last offers for their slots that have not led to a key
};

}  // namespace brennet
