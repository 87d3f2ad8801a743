#include "platform/TornWrite.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/GuardedPages.h"

namespace brennet::platform {
namespace {

using namespace std::string_literals;

const TornWrite kWrites[] = {
    {"name", "old", "new"},
    {"name", std::nullopt, "new"},
    {"", "", ""},
    {"n\0me"s, "\0\xFF"s, std::string(300, 'x')},
};

// The kept file of a write.
std::string keptOf(const TornWrite& write) {
  const TornWrite::Frame frame = TornWrite::frame(write.file, write.old, write.bytes);
  return frame.start + write.old.value_or("") + write.bytes + frame.end;
}

TEST(TornWrite, ComesBackAsItWasKept) {
  for (const TornWrite& write : kWrites) {
    const std::optional<TornWrite> parsed = TornWrite::parse(keptOf(write));
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->file, write.file);
    EXPECT_EQ(parsed->old, write.old);
    EXPECT_EQ(parsed->bytes, write.bytes);
  }
}

TEST(TornWrite, IsNoneWhereAnyByteIsMissingOrAnother) {
  const std::string kept = keptOf(kWrites[0]);
  for (std::size_t size = 0; size < kept.size(); ++size) {
    EXPECT_FALSE(TornWrite::parse(kept.substr(0, size)).has_value()) << size;
    std::string changed = kept;
    changed[size] = static_cast<char>(changed[size] ^ 1);
    EXPECT_FALSE(TornWrite::parse(changed).has_value()) << size;
  }
  EXPECT_FALSE(TornWrite::parse(kept + "x").has_value());
}

// Appends the checksum to a kept file as the format says: FNV-1a, the lowest byte first.
std::string withSum(std::string kept) {
  std::uint64_t sum = 14695981039346656037ULL;
  for (const char byte : kept) sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211ULL;
  for (int i = 0; i < 8; ++i) kept.push_back(static_cast<char>(sum >> (8 * i)));
  return kept;
}

// Their checksums are right, and yet they are no kept files. No memory that could be read follows
// them.
TEST(TornWrite, IsNoneWhereANumberIsMissingOrTooLarge) {
  const std::string none(8, '\xFF');
  const std::string zero(8, '\0');
  const std::string one = "\1" + std::string(7, '\0');
  const std::string magic = "brennet kept file 1\n";
  ASSERT_TRUE(TornWrite::parse(withSum(magic + one + none + one + "fn")).has_value());
  const std::string texts[] = {
      "",
      magic,
      magic + one,
      magic + one + none,
      magic + zero + zero + zero.substr(1),
      magic + one + none + one + "f",
      magic + one + none + one + "fnx",
      magic + none + zero + zero,
      magic + zero + one + one + "o",
      "Brennet kept file 1\n" + one + none + one + "fn",
  };
  const test::GuardedPages pages(1, test::Access::None);
  for (const std::string& text : texts) {
    const std::string kept = withSum(text);
    char* const start = pages.boundary() - kept.size();
    std::copy(kept.begin(), kept.end(), start);
    EXPECT_FALSE(TornWrite::parse({start, kept.size()}).has_value()) << kept.size();
  }
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
