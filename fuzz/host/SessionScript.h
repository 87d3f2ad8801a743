#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brennet::fuzz {

// A session as a text, one step a line. What is no step is passed over, and numbers that are
// missing count as 0.
//
//   settings TEXT              the settings file becomes TEXT
//   preferences TEXT           the game's file becomes TEXT, each "|" a line end
//   load [PLACE]               LoadSettings; without a place the path is null
//   fill SIZE [MEMORY]         FillHotkeyBlock with a record that announces SIZE bytes
//   apply SIZE MEMORY TIME [OFFSET HEX]...
//                              ApplyHotkeyBlock with the current record, changed at the offsets
//   enable BIT TIME            SetEnabled
//   read                       the getters
//   dialog BIT                 ShowSettingsDialog where there is no application; 0: result unwanted
//   memory COUNT [on]          in the next call the COUNT-th allocation fails, and all behind it
//   room SIZE                  in the next call files take no more than SIZE bytes
//
// PLACE is the number of a path (Session.cpp), MEMORY a word of CallerMemory.h.
struct Step {
  std::string_view name;
  std::vector<std::string_view> words;  // behind the name
  std::string_view text;                // all that stands behind the name

  [[nodiscard]] std::string_view word(std::size_t n) const {
    return n < words.size() ? words[n] : std::string_view();
  }
  [[nodiscard]] std::uint32_t number(std::size_t n) const;
};

// The steps of `script`, which must outlive them.
[[nodiscard]] std::vector<Step> stepsOf(std::string_view script);

// The bytes that `hex` names, two digits each; what is behind the first other character is left
// out.
[[nodiscard]] std::string bytesFromHex(std::string_view hex);

}  // namespace brennet::fuzz
