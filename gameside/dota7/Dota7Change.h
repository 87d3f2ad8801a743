#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace brennet {

// The longest text of the DotA 7 registry values, in bytes of UTF-8.
inline constexpr std::size_t kDota7TextBytes = 260;

// What a change of one field of the DotA 7 pages writes to the registry.
struct Dota7Change {
  enum class Kind : std::uint8_t {
    Numbers = 2,         // the numbers alone
    NumbersAndText = 3,  // the text as well
  };

  std::u16string keyPath;    // below the user's root
  std::u16string valueName;  // of the first number; empty if there is none, as with phrases
  std::uint32_t value = 0;
  std::u16string secondName;
  std::uint32_t secondValue = 0;  // written only if it is not 0
  Kind kind = Kind::Numbers;
  std::u16string textName;
  std::u16string text;
  bool hasText = false;  // false: an empty text is written

  friend bool operator==(const Dota7Change&, const Dota7Change&) = default;
};

// A change and the object name of its field.
struct Dota7FieldChange {
  std::u16string_view objectName;  // of a table of Dota7Values.h
  Dota7Change change;
};

// Takes the changes that are to be written.
class Dota7ChangeSink {
 public:
  // The changes, in their order; valid during the call. Throws std::bad_alloc.
  virtual void apply(std::span<const Dota7FieldChange> changes) = 0;

 protected:
  Dota7ChangeSink() = default;
  ~Dota7ChangeSink() = default;
};

// `text` as the registry holds it: UTF-8 without a zero at the end, cut between characters to
// kDota7TextBytes.
[[nodiscard]] std::string dota7TextBytes(std::u16string_view text);

}  // namespace brennet
