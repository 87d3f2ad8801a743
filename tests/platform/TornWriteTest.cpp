#include "platform/TornWrite.h"

#include <gtest/gtest.h>

namespace brennet::platform {
namespace {

using namespace std::string_literals;

const TornWrite kWrites[] = {
    {"name", "old", "new"},
    {"name", std::nullopt, "new"},
    {"", "", ""},
    {"n\0me"s, "\0\xFF"s, std::string(300, 'x')},
};

TEST(TornWrite, ComesBackAsItWasKept) {
  for (const TornWrite& write : kWrites) {
    const std::optional<TornWrite> parsed = TornWrite::parse(write.serialize());
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->file, write.file);
    EXPECT_EQ(parsed->old, write.old);
    EXPECT_EQ(parsed->bytes, write.bytes);
  }
}

TEST(TornWrite, IsNoneWhereAnyByteIsMissingOrAnother) {
  const std::string kept = kWrites[0].serialize();
  for (std::size_t size = 0; size < kept.size(); ++size) {
    EXPECT_FALSE(TornWrite::parse(kept.substr(0, size)).has_value()) << size;
    std::string changed = kept;
    changed[size] = static_cast<char>(changed[size] ^ 1);
    EXPECT_FALSE(TornWrite::parse(changed).has_value()) << size;
  }
  EXPECT_FALSE(TornWrite::parse(kept + "x").has_value());
}

struct Row {
  std::string content;
  bool mayBe;
};

TEST(TornWrite, LeavesOldBytesNewOnesOrZeros) {
  const TornWrite write{"f", "old content", "new one, longer"};
  const Row rows[] = {
      {"old content", true},
      {"new one, longer", true},
      {"new content", true},
      {"old one", true},
      {"", true},
      {std::string(15, '\0'), true},
      {"old conten" + "\0"s, true},
      {"old contentlonger", false},
      {"new one, longer!", false},
      {"another", false},
      {"old content!", false},
      {std::string(16, '\0'), false},
  };
  for (const Row& row : rows) EXPECT_EQ(write.mayHaveLeft(row.content), row.mayBe) << row.content;
}

TEST(TornWrite, LeavesPartOfAFileThatWasNotThere) {
  const TornWrite write{"f", std::nullopt, "new"};
  const Row rows[] = {{"", true}, {"ne", true}, {"new", true}, {"old", false}};
  for (const Row& row : rows) EXPECT_EQ(write.mayHaveLeft(row.content), row.mayBe) << row.content;
}

}  // namespace
}  // namespace brennet::platform
