#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace brennet {

// The registry keys of the DotA 7 settings, below the user's root.
inline constexpr std::u16string_view kDota7Path = u"Software\\Tollamere";
inline constexpr std::u16string_view kDota7ControlPath = u"Software\\Tollamere\\CONTROL";
inline constexpr std::u16string_view kDota7PhrasesPath = u"Software\\Tollamere\\PHRASES";

// How abilities and items are used: with a click on the target, or at once.
enum class Dota7Cast : std::uint8_t { Normal, Quick };

// The two values of a key: its text (bytes, UTF-8 without a zero at the end) and its virtual-key
// code (a number).
struct Dota7ValuePair {
  std::u16string_view text;
  std::u16string_view code;

  friend bool operator==(const Dota7ValuePair&, const Dota7ValuePair&) = default;
};

// A field of the DotA 7 pages that holds a key.
struct Dota7KeyField {
  std::u16string_view objectName;
  std::u16string_view keyPath;
  Dota7ValuePair normal;
  Dota7ValuePair quick;  // empty if the field edits `normal` in both cast modes

  [[nodiscard]] constexpr bool followsCast() const { return !quick.text.empty(); }
  // The values that the field edits in a cast mode.
  [[nodiscard]] constexpr const Dota7ValuePair& values(Dota7Cast cast) const {
    return cast == Dota7Cast::Quick && followsCast() ? quick : normal;
  }
};

// A check box; its value is a number of kDota7ControlPath, 1 or 0.
struct Dota7Switch {
  std::u16string_view objectName;
  std::u16string_view valueName;
};

// A field with a phrase; its value is in kDota7PhrasesPath: bytes, UTF-8 without a zero at the end.
struct Dota7Phrase {
  std::u16string_view objectName;
  std::u16string_view valueName;
};

inline constexpr std::size_t kDota7UnitKeys = 18;
inline constexpr std::size_t kDota7ItemKeys = 7;
inline constexpr std::size_t kDota7SkillKeys = 6;  // in each cast mode
inline constexpr std::size_t kDota7ChatKeys = 15;
inline constexpr std::size_t kDota7KeyFields =
    kDota7UnitKeys + kDota7ItemKeys + 2 * kDota7SkillKeys + kDota7ChatKeys;
inline constexpr std::size_t kDota7Switches = 4;
inline constexpr std::size_t kDota7Phrases = 2 * kDota7ChatKeys;

// Every field of the two pages, in the order of the pages.
[[nodiscard]] std::span<const Dota7KeyField> dota7KeyFields();
[[nodiscard]] std::span<const Dota7Switch> dota7Switches();
[[nodiscard]] std::span<const Dota7Phrase> dota7Phrases();

// The key fields of each group: orders and selections, items with the way home, the hero's
// abilities, quick-chat phrases.
[[nodiscard]] std::span<const Dota7KeyField, kDota7UnitKeys> dota7UnitKeys();
[[nodiscard]] std::span<const Dota7KeyField, kDota7ItemKeys> dota7ItemKeys();
[[nodiscard]] std::span<const Dota7KeyField, kDota7SkillKeys> dota7SkillKeys(Dota7Cast cast);
[[nodiscard]] std::span<const Dota7KeyField, kDota7ChatKeys> dota7ChatKeys();
// The phrases of the quick-chat rows, and those sent when a game starts.
[[nodiscard]] std::span<const Dota7Phrase, kDota7ChatKeys> dota7QuickChatPhrases();
[[nodiscard]] std::span<const Dota7Phrase, kDota7ChatKeys> dota7StartPhrases();

// The row of that object name; null if there is none.
[[nodiscard]] const Dota7KeyField* findDota7KeyField(std::u16string_view objectName);
[[nodiscard]] const Dota7Switch* findDota7Switch(std::u16string_view objectName);
[[nodiscard]] const Dota7Phrase* findDota7Phrase(std::u16string_view objectName);

// Whether a field of the pages edits the value of that name, in that key of the registry.
[[nodiscard]] bool isDota7Value(std::u16string_view keyPath, std::u16string_view name);

}  // namespace brennet
