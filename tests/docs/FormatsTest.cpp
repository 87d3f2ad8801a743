// docs/formats.md says what the code does: row for row, and nothing else.

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <map>

#include "gameside/dota7/Dota7Values.h"
#include "model/SettingTable.h"
#include "tests/docs/Document.h"
#include "tests/support/Golden.h"

namespace brennet {
namespace {

// Names in the formats are ASCII.
std::string narrow(std::u16string_view name) {
  return {name.begin(), name.end()};
}

std::vector<Row> tableOfFormats(std::string_view heading) {
  return tableBelow(readProjectFile("docs/formats.md"), heading);
}

std::string joined(std::span<const std::uint16_t> offsets) {
  std::string text;
  for (const std::uint16_t offset : offsets) {
    if (!text.empty()) text += ", ";
    text += std::to_string(offset);
  }
  return text;
}

// The cells behind the name of a setting: kind, default and offset.
struct Describe {
  HotkeyScheme& fresh;

  static std::string text(KeyWord key) { return key.isSet() ? "a key" : "no key"; }

  Row operator()(const SwitchSetting& row) const {
    std::string place = std::to_string(row.offset);
    if (row.mask != SwitchSetting::kWholeByte) {
      place += ", bit " + std::to_string(std::countr_zero(row.mask));
    }
    return {"switch", std::to_string(fresh.*row.field), place};
  }
  Row operator()(const ByteSetting& row) const {
    return {"number", std::to_string(fresh.*row.field), std::to_string(row.offset)};
  }
  Row operator()(const KeySetting& row) const {
    return {"key", text(fresh.*row.field), std::to_string(row.offset)};
  }
  Row operator()(const KeyListSetting& row) const {
    return {row.autocast != nullptr ? "key list with marks" : "key list",
            text(row.keysOf(fresh).front()), joined(row.offsets)};
  }
  Row operator()(const RemapSetting& row) const {
    return {"remaps", text(fresh.HotKey.front().Src), std::to_string(row.offset)};
  }
  Row operator()(const ComboSetting& row) const {
    return {"combination", text(fresh.ComboKey.Key_A), std::to_string(row.offset)};
  }
  Row operator()(const PresetSetting&) const {
    return {"preset", std::to_string(fresh.NumComboKeyIndex), "none"};
  }
  Row operator()(const QuickChatSetSetting& row) const {
    return {"chat keys", std::to_string(fresh.QuickChatIndex), std::to_string(row.offset)};
  }
  Row operator()(const PhraseSetting& row) const {
    const auto& first = (fresh.*row.field).front();
    return {"phrases", first.value_or(u"").empty() ? "no text" : "a text",
            std::to_string(row.offset)};
  }
};

TEST(Formats, ListTheSettings) {
  HotkeyScheme fresh;
  std::string table = "\n| Element | Kind | Default | Offset in the record |\n|---|---|---|---|\n";
  for (const Setting& setting : kSettings) {
    table += "| `" + narrow(setting.element) + "`";
    for (const std::string& cell : std::visit(Describe{fresh}, setting.kind)) table += " | " + cell;
    table += " |\n";
  }
  test::expectGoldenPart("docs/formats.md", "elements", table + "\n");
}

// The switches of the flag word, as the macro of the public header lists them.
TEST(Formats, ListTheFlagsInTheHeader) {
  std::map<std::size_t, std::string> flags;
  for (const Setting& setting : kSettings) {
    const auto* const kind = std::get_if<SwitchSetting>(&setting.kind);
    if (kind == nullptr || kind->mask == SwitchSetting::kWholeByte) continue;
    const auto bit = static_cast<std::size_t>(std::countr_zero(kind->mask));
    flags[8 * (kind->offset - offsetof(HotkeyBlock, flags)) + bit] = narrow(setting.element);
  }
  std::vector<std::string> lines = {"#define BRENNET_BLOCK_FLAGS(FLAG)"};
  for (const auto& [bit, name] : flags) {
    lines.push_back("  FLAG(" + std::to_string(bit) + ", " + name + ")");
  }
  std::size_t width = 0;
  for (const std::string& line : lines) width = std::max(width, line.size());
  std::string macro;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    macro += lines[i] + std::string(width - lines[i].size(), ' ') + " \\\n";
  }
  test::expectGoldenPart("model/include/brennet/HotkeyBlock.h", "flags",
                         macro + lines.back() + "\n");
}

TEST(Formats, ListTheRecord) {
  const std::string header = readProjectFile("model/include/brennet/HotkeyBlock.h");
  const std::string start = "\nBRENNET_BLOCK_OFFSET(";
  std::vector<Row> expected;
  for (std::size_t at = header.find(start); at != std::string::npos; at = header.find(start, at)) {
    at += start.size();
    const std::size_t comma = header.find(", ", at);
    const std::size_t close = header.find(");", comma);
    expected.push_back(
        {header.substr(at, comma - at), header.substr(comma + 2, close - comma - 2)});
  }
  ASSERT_FALSE(expected.empty());
  std::vector<Row> listed = tableOfFormats("The record");
  for (Row& row : listed) row.resize(2);
  EXPECT_EQ(listed, expected);
}

// The values of the key fields below one registry key. What a field is called is for people.
void expectKeyFields(std::string_view heading, std::u16string_view keyPath, std::size_t columns) {
  std::vector<Row> expected;
  for (const Dota7KeyField& field : dota7KeyFields()) {
    if (field.keyPath != keyPath) continue;
    expected.push_back({narrow(field.normal.text), narrow(field.normal.code),
                        narrow(field.quick.text), narrow(field.quick.code)});
    while (expected.back().size() > columns) {
      EXPECT_EQ(expected.back().back(), "");
      expected.back().pop_back();
    }
  }
  std::vector<Row> listed = tableOfFormats(heading);
  for (Row& row : listed) row.erase(row.begin());
  EXPECT_EQ(listed, expected);
}

TEST(Formats, ListTheKeysInTheRegistry) {
  expectKeyFields("Keys in CONTROL", kDota7ControlPath, 4);
  expectKeyFields("Keys in PHRASES", kDota7PhrasesPath, 2);
}

template <class Values>
void expectValues(std::string_view heading, const Values& values) {
  std::vector<Row> expected;
  for (const auto& value : values) expected.push_back({narrow(value.valueName)});
  std::vector<Row> listed = tableOfFormats(heading);
  for (Row& row : listed) row.erase(row.begin());
  EXPECT_EQ(listed, expected);
}

TEST(Formats, ListTheSwitchesAndPhrasesInTheRegistry) {
  expectValues("Switches in CONTROL", dota7Switches());
  expectValues("Phrases in PHRASES", dota7Phrases());
}

}  // namespace
}  // namespace brennet
