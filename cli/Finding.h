#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "markup/text/TextPosition.h"

namespace brennet::cli {

// Something in a settings file that a load does not use, or uses in another way than it looks.
struct Finding {
  enum class Kind : std::uint8_t {
    Encoding,  // bytes that mean nothing, or an encoding that nobody knows
    Markup,    // a tag that is broken or does not match
    Missing,   // a setting that keeps its default
    Unknown,   // an element, a number of a key or of a phrase that nothing reads
    Repeated,  // a second one, of which only one is read
    Number,    // a number that is none, or out of its range
    Phrase,    // a phrase that is cut
    Key,       // a key that has no place: it cannot be bound, or something else has it
    Choice,    // a choice of keys that cannot be made
  };
  Kind kind = Kind::Markup;
  TextPosition position;  // in the text of the file
  std::string where;      // "setting group 1, wheel up"; empty for the whole file. UTF-8
  std::string text;       // what is wrong, in plain English. UTF-8

  friend bool operator==(const Finding&, const Finding&) = default;
};

// What the kind is called in output for programs: "encoding".
[[nodiscard]] std::string_view kindName(Finding::Kind kind);

// In the order of the file.
void sortByPosition(std::vector<Finding>& findings);

}  // namespace brennet::cli
