#include "cli/Finding.h"

#include <gtest/gtest.h>

#include <set>

namespace brennet::cli {
namespace {

using Kind = Finding::Kind;

TEST(Finding, HasANameForEachKind) {
  std::set<std::string_view> names;
  for (int kind = 0; kind <= static_cast<int>(Kind::Choice); ++kind) {
    names.insert(kindName(static_cast<Kind>(kind)));
  }
  EXPECT_EQ(names.size(), 9U);
  EXPECT_EQ(kindName(Kind::Encoding), "encoding");
  EXPECT_EQ(kindName(Kind::Choice), "choice");
}

TEST(Finding, IsSortedByItsPlaceAndThenAsItCame) {
  std::vector<Finding> findings = {{Kind::Key, {2, 1}, "a", ""},
                                   {Kind::Number, {1, 9}, "b", ""},
                                   {Kind::Missing, {1, 2}, "c", ""},
                                   {Kind::Unknown, {1, 2}, "d", ""}};
  sortByPosition(findings);
  std::string order;
  for (const Finding& finding : findings) order += finding.where;
  EXPECT_EQ(order, "cdba");
}

}  // namespace
}  // namespace brennet::cli
