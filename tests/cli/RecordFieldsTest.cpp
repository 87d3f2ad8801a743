#include "cli/RecordFields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "brennet/HotkeyBlock.h"

namespace brennet::cli {
namespace {

// What the field `name` of a record says in which the bytes from its offset on are `bytes`.
std::string meaning(const std::string& name, std::string_view bytes) {
  std::string record(sizeof(HotkeyBlock), '\0');
  const std::vector<RecordField> fields = explainRecord(record);
  const auto field = std::ranges::find(fields, name, &RecordField::name);
  if (field == fields.end()) return "there is no field " + name;
  record.replace(field->offset, bytes.size(), bytes);
  return explainRecord(record)[static_cast<std::size_t>(field - fields.begin())].meaning;
}

TEST(RecordFields, SayWhatTheirBytesMean) {
  using namespace std::string_view_literals;
  const struct {
    const char* name;
    std::string_view bytes;
    const char* meaning;
  } kRows[] = {
      {"size", "\x0F\x07\0\0"sv, "1807"},
      {"flags", "\0\0\0\0"sv, "none"},
      {"flags", "\x81\0\0\x80"sv, "DisableLWinFlag, ShowFManaFlag, enabled"},
      {"hero skill 1", "\0\0"sv, "-"},
      {"hero skill 1", "\0\xFF"sv, "-"},
      {"hero skill 7", "\x00\x51"sv, "Q"},
      {"hero skill 12", "\x0A\x51"sv, "CTRL + Q (quick cast)"},
      {"item 6", "\x04\x70"sv, "Alt + F1"},
      {"cursor lock", "\x00\xFC"sv, "key 64512"},
      {"remap 1", "\0\0\0\x51"sv, "-"},
      {"remap 6", "\0\x70\0\xC0"sv, "` sends F1"},
      {"quick-chat keys", "\0\0"sv, "Alt+1 to Alt+8"},
      {"quick-chat keys", "\1\0"sv, "Alt+F1 to Alt+F8"},
      {"zoom", "\x78"sv, "120"},
      {"reserved", "\0\0"sv, "unused"},
      {"reserved", "\0\1"sv, "unused, and not 0"},
      {"quick-chat phrases", "\0\0"sv, " |  |  |  |  |  |  | "},
      {"chat-wheel phrases", "gg\0\xE8\xB0\xA2\0"sv, "gg | \xE8\xB0\xA2 |  |  |  |  |  | "},
      {"HideUI", "\0"sv, "off"},
      {"DisableLeftAltShowHP", "\1"sv, "on"},
  };
  for (const auto& row : kRows) EXPECT_EQ(meaning(row.name, row.bytes), row.meaning) << row.name;
}

TEST(RecordFields, CoverEachByteOnce) {
  std::size_t at = 0;
  for (const RecordField& field : explainRecord(std::string(sizeof(HotkeyBlock), '\0'))) {
    EXPECT_EQ(field.offset, at) << field.name;
    at += field.size;
  }
  EXPECT_EQ(at, sizeof(HotkeyBlock));
}

TEST(RecordFields, AreThoseThatAnOlderRecordHoldsWhole) {
  EXPECT_TRUE(explainRecord("").empty());
  EXPECT_TRUE(explainRecord(std::string(3, '\0')).empty());
  EXPECT_EQ(explainRecord(std::string(4, '\0')).size(), 1U);
  EXPECT_EQ(explainRecord(std::string(69, '\0')).back().name, "zoom");
  EXPECT_EQ(explainRecord(std::string(1135, '\0')).back().name, "reserved");
}

TEST(RecordFields, WithoutAZeroByteAreOnePhrase) {
  const std::string record(sizeof(HotkeyBlock), 'x');
  const std::vector<RecordField> fields = explainRecord(record);
  const auto field = std::ranges::find(fields, "quick-chat phrases", &RecordField::name);
  ASSERT_NE(field, fields.end());
  EXPECT_EQ(field->meaning, std::string(1024, 'x') + " |  |  |  |  |  |  | ");
}

}  // namespace
}  // namespace brennet::cli
