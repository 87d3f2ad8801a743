#pragma once

#include <map>
#include <string>

namespace brennet {

// The names of keys on the DotA 7 pages and in the DotA 7 registry texts.
//
// A map from virtual-key code to text, filled on construction. Look-ups index the map, so a code
// without a name gives an empty text and from then on has an empty entry.
class Dota7KeyNames {
 public:
  Dota7KeyNames();

  // The name of the key `code`; empty if there is none.
  std::u16string keyName(int code);

  // The text of a key pressed together with a modifier key, both given as virtual-key codes, for
  // example "ALT + Q". Without a modifier (code 0, or a code without a name): the key name alone.
  std::u16string keyText(int keyCode, int modifierCode);

  // All entries in ascending order of their codes, including empty ones that look-ups left.
  [[nodiscard]] const std::map<int, std::u16string>& entries() const { return names_; }

 private:
  std::map<int, std::u16string> names_;
};

}  // namespace brennet
