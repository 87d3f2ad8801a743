#include "cli/LineDifference.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace brennet::cli {
namespace {

using In = ComparedLine::In;

// Each line with its sign, separated by "|".
std::string compared(std::string_view before, std::string_view after) {
  std::string text;
  for (const ComparedLine& line : compareLines(before, after)) {
    text += (text.empty() ? "" : "|") + std::string(1, static_cast<char>(line.in)) +
            std::string(line.line);
  }
  return text;
}

TEST(LineDifference, IsAsSmallAsPossible) {
  const struct {
    const char* before;
    const char* after;
    const char* compared;
  } kRows[] = {
      {"", "", ""},
      {"a\n", "a\n", " a"},
      {"a", "a\r\n", " a"},
      {"", "a\nb", "+a|+b"},
      {"a\nb", "", "-a|-b"},
      {"a\nb\nc\n", "a\nc\n", " a|-b| c"},
      {"a\nc\n", "a\nb\nc\n", " a|+b| c"},
      {"a\nb\nc\n", "a\nx\nc\n", " a|-b|+x| c"},
      {"a\na\n", "a\n", " a|-a"},
      {"1\na\n2\nb\n3", "9\na\nb\n8", "-1|+9| a|-2| b|-3|+8"},
      {"\n\n", "\n", " |-"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(compared(row.before, row.after), row.compared) << row.before << " / " << row.after;
  }
}

TEST(LineDifference, GivesBothTextsBack) {
  std::mt19937 random(20742);
  const auto text = [&] {
    std::string lines;
    for (std::size_t i = random() % 12; i-- > 0;) {
      lines += std::string(1, static_cast<char>('a' + random() % 3)) + '\n';
    }
    return lines;
  };
  for (int i = 0; i < 2000; ++i) {
    const std::string before = text();
    const std::string after = text();
    std::string one;
    std::string other;
    for (const ComparedLine& line : compareLines(before, after)) {
      if (line.in != In::After) one += std::string(line.line) + '\n';
      if (line.in != In::Before) other += std::string(line.line) + '\n';
    }
    EXPECT_EQ(one, before);
    EXPECT_EQ(other, after);
  }
}

TEST(LineDifference, OfHugeTextsIsTheWholeMiddle) {
  std::string before = "same\n";
  std::string after = "same\n";
  for (int i = 0; i < 5000; ++i) {
    before += "b\nx\n";
    after += "a\nx\n";
  }
  const std::vector<ComparedLine> lines = compareLines(before, after);
  EXPECT_EQ(lines.front(), (ComparedLine{In::Both, "same"}));
  EXPECT_EQ(lines.back(), (ComparedLine{In::Both, "x"}));
  EXPECT_EQ(lines.size(), 2U + 2 * 9999);
}

}  // namespace
}  // namespace brennet::cli
