#include "cli/LineDifference.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace brennet::cli {
namespace {

using In = ComparedLine::In;
using Lines = std::span<const std::string_view>;

constexpr std::size_t kLargestTable = std::size_t{1} << 24U;

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
  }
  return lines;
}

void add(In in, Lines lines, std::vector<ComparedLine>& compared) {
  for (const std::string_view line : lines) compared.push_back({in, line});
}

// The longest common subsequence, by a table of the lengths of those of all tails.
void compareMiddle(Lines before, Lines after, std::vector<ComparedLine>& compared) {
  const std::size_t width = after.size() + 1;
  if (width > kLargestTable / (before.size() + 1)) {
    add(In::Before, before, compared);
    add(In::After, after, compared);
    return;
  }
  std::vector<std::uint32_t> lengths((before.size() + 1) * width);
  for (std::size_t i = before.size(); i-- > 0;) {
    for (std::size_t j = after.size(); j-- > 0;) {
      lengths[i * width + j] = before[i] == after[j] ? lengths[(i + 1) * width + j + 1] + 1
                                                     : std::max(lengths[(i + 1) * width + j],
                                                                lengths[i * width + j + 1]);
    }
  }
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < before.size() && j < after.size()) {
    if (before[i] == after[j]) {
      compared.push_back({In::Both, before[i++]});
      ++j;
    } else if (lengths[(i + 1) * width + j] >= lengths[i * width + j + 1]) {
      compared.push_back({In::Before, before[i++]});
    } else {
      compared.push_back({In::After, after[j++]});
    }
  }
  add(In::Before, before.subspan(i), compared);
  add(In::After, after.subspan(j), compared);
}

}  // namespace

std::vector<ComparedLine> compareLines(std::string_view before, std::string_view after) {
  const std::vector<std::string_view> beforeLines = linesOf(before);
  const std::vector<std::string_view> afterLines = linesOf(after);
  const auto [end, afterEnd] = std::ranges::mismatch(beforeLines, afterLines);
  const auto same = static_cast<std::size_t>(end - beforeLines.begin());
  Lines restBefore = Lines(beforeLines).subspan(same);
  Lines restAfter = Lines(afterLines).subspan(same);
  std::size_t tail = 0;
  while (tail < std::min(restBefore.size(), restAfter.size()) &&
         restBefore[restBefore.size() - 1 - tail] == restAfter[restAfter.size() - 1 - tail]) {
    ++tail;
  }
  std::vector<ComparedLine> compared;
  add(In::Both, Lines(beforeLines).first(same), compared);
  compareMiddle(restBefore.first(restBefore.size() - tail),
                restAfter.first(restAfter.size() - tail), compared);
  add(In::Both, restBefore.last(tail), compared);
  return compared;
}

}  // namespace brennet::cli
