#include "check/Slots.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"

namespace brennet::check {
namespace {

// The declarations of the interface, in their order; each argument is a word on the stack.
TEST(Slots, AreThoseOfTheInterface) {
  const std::string header = test::readBytes(test::projectFile("host/include/brennet/IBrennet.h"));
  const std::regex declaration(R"(virtual [\w:]+ BRENNET_CALL (\w+)\(([^)]*)\) = 0;)");
  std::size_t count = 0;
  for (std::sregex_iterator found(header.begin(), header.end(), declaration), end; found != end;
       ++found, ++count) {
    ASSERT_LT(count, kSlots.size()) << "a slot was added; add it here: " << found->str(1);
    EXPECT_EQ(found->str(1), kSlots[count].name);
    const std::string arguments = found->str(2);
    const auto commas = std::count(arguments.begin(), arguments.end(), ',');
    const auto words = arguments.empty() ? 0 : commas + 1;
    EXPECT_EQ(words * 4, kSlots[count].argumentBytes) << found->str(1);
  }
  EXPECT_EQ(count, kSlots.size());
}

}  // namespace
}  // namespace brennet::check
