#include "check/Rules.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "check/Findings.h"
#include "tests/support/Golden.h"

namespace brennet::check {
namespace {

constexpr Rule kFirst = Rule::Thread;
constexpr Rule kLast = Rule::Unloaded;

static_assert(static_cast<std::size_t>(kLast) + 1 == kRules, "the last rule, and how many");

template <class Act>
void forEachRule(Act act) {
  for (int i = static_cast<int>(kFirst); i <= static_cast<int>(kLast); ++i) {
    act(static_cast<Rule>(i));
  }
}

TEST(Rules, HaveDifferentNamesAndAllTheirTexts) {
  std::set<std::string> names;
  forEachRule([&](Rule rule) {
    const RuleText& text = textOf(rule);
    EXPECT_TRUE(names.insert(text.name).second) << text.name;
    for (const char* const part : {text.broken, text.contract, text.mend}) {
      EXPECT_NE(std::string(part), "") << text.name;
    }
    EXPECT_EQ(std::string(text.contract).back(), '.') << text.name;
    EXPECT_EQ(std::string(text.mend).back(), '.') << text.name;
  });
}

TEST(Rules, AreAllInTheDocument) {
  std::string table = "\n| rule | what the host did | what the contract says |\n|---|---|---|\n";
  forEachRule([&](Rule rule) {
    const RuleText& text = textOf(rule);
    table += std::string("| `") + text.name + "` | " + text.broken + " | " + text.contract + " |\n";
  });
  test::expectGoldenPart("docs/checking.md", "rules", table + "\n");
}

TEST(Rules, SayWhatWasMetWhereAndWhatToDo) {
  EXPECT_EQ(findingText(Rule::SizeNotSet, Slot::FillHotkeyBlock, "it is 0"),
            "slot 3 FillHotkeyBlock: [size-not-set] `size` of the record makes no sense (it is 0). "
            "Contract: The host writes the size of its memory into `size` before each fill and "
            "each apply. Mend: Set `block.size = sizeof(brennet::HotkeyBlock)` before the call.");
}

}  // namespace
}  // namespace brennet::check
