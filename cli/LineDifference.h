#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brennet::cli {

// A line of one text or of both.
struct ComparedLine {
  enum class In : char { Both = ' ', Before = '-', After = '+' };
  In in = In::Both;
  std::string_view line;  // without its line end

  friend bool operator==(const ComparedLine&, const ComparedLine&) = default;
};

// The lines of both texts in their order; as many as possible are in both. A line ends in LF or CR
// LF. Where more than some thousand lines in a row differ, all of them count as different. The
// lines are views into the texts. Throws std::bad_alloc.
[[nodiscard]] std::vector<ComparedLine> compareLines(std::string_view before,
                                                     std::string_view after);

}  // namespace brennet::cli
