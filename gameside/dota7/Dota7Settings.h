#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>

#include "gameside/dota7/Dota7Change.h"
#include "gameside/dota7/Dota7KeyNames.h"
#include "gameside/dota7/Dota7Undo.h"
#include "gameside/dota7/Dota7Values.h"
#include "platform/Registry.h"

namespace brennet {

// A key of the DotA 7 pages: the virtual-key codes of the key and of the modifier held with it.
struct Dota7Key {
  static constexpr int kNoModifier = 2;
  static constexpr int kCtrl = 0x11;
  static constexpr int kAlt = 0x12;

  int code = 0;  // 1 to 255; 0: no key
  int modifier = kNoModifier;

  friend constexpr bool operator==(const Dota7Key&, const Dota7Key&) = default;
};

// The values that the DotA 7 pages show and edit. Each change is passed on at once, to be recorded
// and written.
//
// What the registry lacks, or holds with a wrong length, reads as its default: no key, a switch
// that is off, an empty phrase. A number is what its four bytes say, whatever their type; a phrase
// of another type is empty. The cast mode is not a value of the registry; it is normal at first.
// All rows come from the tables of Dota7Values.h.
class Dota7Settings {
 public:
  // Both outlive this object, and are not used before load() or a change.
  Dota7Settings(Dota7KeyNames& names, Dota7ChangeSink& changes)
      : names_(&names), changes_(&changes) {}

  // Reads everything from the registry. The cast mode stays.
  void load();
  // Reads only the phrases and their keys.
  void loadPhrases();
  // Reads what load() would read if these changes had not been made. Those that the current run has
  // not made itself count as made by somebody else.
  void loadAsBefore(const Dota7Undos& changes);

  [[nodiscard]] Dota7Cast cast() const { return cast_; }
  // From now on the fields that follow the cast mode show and edit the values of this one.
  void setCast(Dota7Cast cast) { cast_ = cast; }

  // The key of a field in the cast mode, and its text; empty for no key.
  [[nodiscard]] Dota7Key key(const Dota7KeyField& field) const;
  [[nodiscard]] std::u16string keyText(const Dota7KeyField& field) const;

  // The field other than `field` that has the same key with the same modifier; null if none has.
  // Of a field that follows the cast mode only the key of that mode counts.
  [[nodiscard]] const Dota7KeyField* holderOf(const Dota7KeyField& field, Dota7Key key) const;

  // Stores the key of a field in the cast mode. Ctrl or Alt by itself is a key without a modifier;
  // there are no other modifiers. Returns false, and changes nothing, if another field has the key
  // (holderOf).
  [[nodiscard]] bool storeKey(const Dota7KeyField& field, Dota7Key key);
  void clearKey(const Dota7KeyField& field);

  [[nodiscard]] bool isOn(const Dota7Switch& row) const;
  void setOn(const Dota7Switch& row, bool on);

  [[nodiscard]] const std::u16string& phrase(const Dota7Phrase& row) const;
  // Stores a phrase, cut between characters to 260 bytes of UTF-8. The phrase of a value that could
  // not be read as one is not written unless it has changed or the player has typed it, even the
  // same text.
  void setPhrase(const Dota7Phrase& row, std::u16string_view text, bool isTyped = false);

  // Gives every value its default, in both cast modes, even if it could not be read, and sets the
  // normal cast mode. Missing values are not created.
  void reset();

 private:
  using Keys = std::array<Dota7Key, 2>;  // by cast mode

  class Source;

  void load(const Source& control, const Source& phrases);
  void loadPhrases(const Source& source);
  void loadKeys(const Source& source);
  [[nodiscard]] Dota7Key readKey(const Source& source, const Dota7ValuePair& values) const;
  [[nodiscard]] Dota7Key& keyPlace(const Dota7KeyField& field, Dota7Cast cast);
  // Take a value and return what has to be written for it.
  [[nodiscard]] Dota7FieldChange keyChange(const Dota7KeyField& field, Dota7Cast cast,
                                           const Dota7Key& key);
  [[nodiscard]] Dota7FieldChange switchChange(const Dota7Switch& row, bool on);
  [[nodiscard]] Dota7FieldChange phraseChange(const Dota7Phrase& row, std::u16string stored);
  void apply(const Dota7FieldChange& change);

  Dota7KeyNames* names_;
  Dota7ChangeSink* changes_;
  Dota7Cast cast_ = Dota7Cast::Normal;
  std::array<Keys, kDota7KeyFields> keys_;
  std::array<bool, kDota7Switches> switches_{};
  std::array<std::u16string, kDota7Phrases> phrases_;
  // The values that phrases_ does not represent completely.
  std::bitset<kDota7Phrases> unreadable_;
};

}  // namespace brennet
