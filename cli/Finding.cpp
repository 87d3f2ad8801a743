#include "cli/Finding.h"

#include <algorithm>
#include <tuple>

namespace brennet::cli {

std::string_view kindName(Finding::Kind kind) {
  constexpr std::string_view kNames[] = {"encoding", "markup", "missing", "unknown", "repeated",
                                         "number",   "phrase", "key",     "choice"};
  return kNames[static_cast<std::size_t>(kind)];
}

void sortByPosition(std::vector<Finding>& findings) {
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& one, const Finding& other) {
    return std::tie(one.position.line, one.position.column) <
           std::tie(other.position.line, other.position.column);
  });
}

}  // namespace brennet::cli
