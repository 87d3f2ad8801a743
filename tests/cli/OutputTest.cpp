#include "cli/Output.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <sstream>

namespace brennet::cli {
namespace {

TEST(Output, IsJsonWhateverTheBytesAre) {
  std::ostringstream out;
  printJson({{"name", "a\xFF"}}, out);
  EXPECT_EQ(nlohmann::json::parse(out.str())["name"], "a\xEF\xBF\xBD");
}

TEST(Output, HasNoControlCharacters) {
  EXPECT_EQ(shown(std::string_view("a\x1B[2J\0\r\n\x7F", 9)), "a?[2J????");
  EXPECT_EQ(shown("\xE8\xB0\xA2"), "\xE8\xB0\xA2");
}

}  // namespace
}  // namespace brennet::cli
