#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/Commands.h"
#include "model/HotkeyConfig.h"

namespace brennet::cli {

// A value that differs between two files, all in words and UTF-8.
struct Change {
  std::string name;  // with its setting group
  std::string before;
  std::string after;

  friend bool operator==(const Change&, const Change&) = default;
};

// What differs between two states of the settings: the switch of the feature, the current setting
// group, the save time, and the values of each group. Throws std::bad_alloc.
[[nodiscard]] std::vector<Change> changesBetween(const HotkeyConfig& before,
                                                 const HotkeyConfig& after);

// What differs between two records, field by field. One may be shorter. Throws std::bad_alloc.
[[nodiscard]] std::vector<Change> changesBetween(std::string_view recordBefore,
                                                 std::string_view recordAfter);

void print(const std::vector<Change>& changes, Answer answer);

}  // namespace brennet::cli
