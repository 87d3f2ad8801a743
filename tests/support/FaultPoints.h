#pragma once

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace brennet::test {

// The points, from 0 to count - 1, at which a test makes something fail: `sample` of them or a few
// more, the same each time, evenly spaced and including the last one. BRENNET_TEST_FAULTS replaces
// `sample` by another number or "all".
inline std::vector<long> faultPoints(long count, long sample) {
  const char* const choice = std::getenv("BRENNET_TEST_FAULTS");
  if (choice != nullptr) {
    sample = std::string_view(choice) == "all" ? count : std::strtol(choice, nullptr, 10);
  }
  const long stride = std::max(1L, count / std::max(1L, sample));
  std::vector<long> points;
  for (long point = 0; point < count; point += stride) points.push_back(point);
  if (count > 0 && points.back() != count - 1) points.push_back(count - 1);
  return points;
}

}  // namespace brennet::test
