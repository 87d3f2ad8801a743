#include "cli/CommandLine.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <cstddef>
#include <filesystem>
#include <regex>
#include <sstream>

#include "brennet/HotkeyBlock.h"
#include "cli/Finding.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TestData.h"

namespace brennet::cli {
namespace {

constexpr const char* kCommands[] = {"check", "show",  "diff",   "record", "explain",
                                     "apply", "prefs", "repair", "keys"};

struct Result {
  int status;
  std::string out;
  std::string err;
};

Result run(std::vector<std::string> arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = runCommandLine(std::move(arguments), out, err);
  return {status, out.str(), err.str()};
}

class CommandLineTest : public testing::Test {
 protected:
  // A file of the folder with these bytes; its name in UTF-8.
  std::string file(const std::u8string& name, const std::string& bytes) {
    const std::filesystem::path path = folder_.path() / name;
    test::writeBytes(path, bytes);
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
  }
  std::string sample() {
    return file(u8"\u8bbe\u7f6e \u00e4.xml", test::readBytes(test::sampleData("KeyInfo.xml")));
  }

  test::TempFolder folder_;
};

TEST_F(CommandLineTest, HelpsWhoAsks) {
  const Result help = run({"--help"});
  EXPECT_EQ(help.status, 0);
  for (const char* const command : kCommands) {
    EXPECT_NE(help.out.find(command), std::string::npos) << command;
    const Result more = run({command, "--help"});
    EXPECT_EQ(more.status, 0);
    EXPECT_NE(more.out.find(std::string("brennet ") + command), std::string::npos) << more.out;
    EXPECT_NE(more.out.find("--json"), std::string::npos) << command;
  }
  EXPECT_EQ(run({"--version"}).out.substr(0, 8), "brennet ");
}

// Whoever adds a command or a kind of finding describes it in docs/command-line.md.
TEST_F(CommandLineTest, IsDescribed) {
  const std::string page = test::readBytes(test::projectFile("docs/command-line.md"));
  const std::string help = run({"--help"}).out;
  std::istringstream lines(help.substr(help.find("Subcommands:")));
  std::string line;
  std::getline(lines, line);
  for (std::string command; std::getline(lines, line) && line.starts_with("  ");) {
    std::istringstream(line) >> command;
    EXPECT_NE(page.find("| `brennet " + command + " "), std::string::npos) << command;
  }
  for (int kind = 0; kind <= static_cast<int>(Finding::Kind::Choice); ++kind) {
    const std::string name(kindName(static_cast<Finding::Kind>(kind)));
    EXPECT_NE(page.find("| `" + name + "` |"), std::string::npos) << name;
  }
}

// Whoever adds an option or a command describes it in cli/man/brennet.1.
TEST_F(CommandLineTest, HasAManualPage) {
  std::string page = test::readBytes(test::projectFile("cli/man/brennet.1"));
  std::erase(page, '\\');
  std::string help = run({"--help"}).out;
  for (const std::string command : kCommands) {
    EXPECT_NE(page.find("fB" + command + "fR "), std::string::npos) << command;
    help += run({command, "--help"}).out;
  }
  const std::regex option("--[a-z-]+");
  for (std::sregex_iterator found(help.begin(), help.end(), option), end; found != end; ++found) {
    EXPECT_NE(page.find(found->str()), std::string::npos) << found->str();
  }
}

TEST_F(CommandLineTest, RefusesWhatItDoesNotUnderstand) {
  for (const auto& arguments : std::vector<std::vector<std::string>>{{},
                                                                     {"dance"},
                                                                     {"check"},
                                                                     {"explain"},
                                                                     {"record", "a", "b"},
                                                                     {"keys", "--scheme", "1"},
                                                                     {"keys", "f", "--scheme", "4"},
                                                                     {"check", "--loud", "f"}}) {
    const Result result = run(arguments);
    EXPECT_EQ(result.status, 3);
    EXPECT_NE(result.err, "");
    EXPECT_EQ(result.out, "");
  }
}

TEST_F(CommandLineTest, ChecksSettingsFiles) {
  const std::string name = sample();
  const Result result = run({"check", name});
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.out.find(name + ":4:1: missing: setting group 1: <ShowFManaFlag> is missing\n"),
            std::string::npos)
      << result.out;
  EXPECT_NE(result.out.find("a load accepts it (gb2312), 12 findings\n"), std::string::npos);
  EXPECT_EQ(run({"check", name, file(u8"broken", "<KeyInfo>")}).status, 2);
}

TEST_F(CommandLineTest, AnswersInJson) {
  const std::string name = sample();
  const auto checks = nlohmann::json::parse(run({"check", "--json", name}).out);
  ASSERT_EQ(checks.size(), 1U);
  EXPECT_EQ(checks[0]["file"], name);
  EXPECT_EQ(checks[0]["loadable"], true);
  EXPECT_EQ(checks[0]["findings"].size(), 12U);
  EXPECT_EQ(checks[0]["findings"][0]["kind"], "missing");
  EXPECT_EQ(checks[0]["findings"][0]["line"], 4);

  const auto record = nlohmann::json::parse(run({"record", "--json", name}).out);
  EXPECT_EQ(record["size"], 1807);
  EXPECT_EQ(record["bytes"].get<std::string>().substr(0, 8), "0f070000");

  const auto keys = nlohmann::json::parse(run({"keys", "--json"}).out);
  EXPECT_EQ(keys[0]["stored"], keys[0]["virtualKey"].get<int>() * 256);
  const auto uses = nlohmann::json::parse(run({"keys", "--json", name, "--scheme", "1"}).out);
  EXPECT_FALSE(uses.empty());
}

TEST_F(CommandLineTest, MakesARecordAndExplainsIt) {
  const std::string name = sample();
  const std::string record = file(u8"record \u8bb0\u5f55", "");
  EXPECT_EQ(run({"record", name, "--output", record}).out, "");
  const Result explained = run({"explain", record});
  EXPECT_EQ(explained.status, 0);
  EXPECT_NE(explained.out.find("Q (quick cast)\n"), std::string::npos) << explained.out;
  const auto fields = nlohmann::json::parse(run({"explain", "--json", record}).out);
  EXPECT_EQ(fields[0]["name"], "size");
  EXPECT_EQ(fields[0]["meaning"], "1807");
}

TEST_F(CommandLineTest, RefusesFilesThatAreNoRecord) {
  const std::string bytes[] = {"", "abc", std::string("\3\0\0\0", 4), std::string("\5\0\0\0", 4)};
  for (const std::string& content : bytes) {
    const Result result = run({"explain", file(u8"record", content)});
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.err.find("no record"), std::string::npos) << result.err;
  }
  EXPECT_EQ(run({"explain", file(u8"record", std::string("\4\0\0\0", 4))}).status, 0);
}

TEST_F(CommandLineTest, SaysWhichFileCannotBeUsed) {
  const std::string missing = file(u8"there", "") + "-not";
  const std::string folder = folder_.path().string();
  for (const char* command : {"check", "show", "record", "explain", "prefs", "repair", "keys"}) {
    for (const std::string& name : {missing, folder}) {
      const Result result = run({command, name});
      EXPECT_EQ(result.status, 2) << command;
      EXPECT_EQ(result.err, "brennet: " + name + ": cannot be read\n");
    }
  }
  const std::string foreign = file(u8"foreign", "<html/>");
  EXPECT_EQ(run({"record", foreign}).status, 2);
  EXPECT_EQ(run({"record", sample(), "-o", folder + "/no/folder"}).status, 2);
}

TEST_F(CommandLineTest, ShowsASettingGroup) {
  const std::string name = sample();
  const std::string shown = run({"show", name}).out;
  EXPECT_NE(shown.find("current setting group     2\n"), std::string::npos) << shown;
  EXPECT_NE(shown.find("hero skill 1, quick cast  on\n"), std::string::npos);
  const auto first = nlohmann::json::parse(run({"show", "--json", name, "--scheme", "1"}).out);
  EXPECT_EQ(first["group"], 1);
  EXPECT_EQ(first["lastSaveTime"], 1404738022);
  EXPECT_EQ(first["settings"]["hero skill 1"], "Q");
  EXPECT_EQ(first["settings"]["NumComboKeyIndex"], "item preset 1");
}

TEST_F(CommandLineTest, ComparesSettingsFiles) {
  const std::string name = sample();
  EXPECT_EQ(run({"diff", name, name}).out, "nothing differs\n");
  std::string bytes = test::readBytes(test::sampleData("KeyInfo.xml"));
  bytes.replace(bytes.find("index=\"1\""), 9, "index=\"2\"");
  bytes.replace(bytes.find("autocast=\"1\">20736"), 18, "autocast=\"0\">65280");
  const Result result = run({"diff", name, file(u8"other", bytes)});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out,
            "current setting group: 2 -> 3\n"
            "setting group 1, hero skill 1: Q -> -\n"
            "setting group 1, hero skill 1, quick cast: on -> off\n");
  EXPECT_EQ(nlohmann::json::parse(run({"diff", "--json", name, name}).out).size(), 0U);
}

TEST_F(CommandLineTest, ComparesRecords) {
  const std::string name = sample();
  const std::string one = file(u8"one", "");
  ASSERT_EQ(run({"record", name, "-o", one}).status, 0);
  std::string bytes = test::readBytes(folder_ / "one");
  bytes[offsetof(HotkeyBlock, zoomValue)] = 77;
  const Result result = run({"diff", one, file(u8"two", bytes)});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "zoom: 120 -> 77\n");
  bytes.resize(offsetof(HotkeyBlock, hideUI));
  bytes[0] = static_cast<char>(bytes.size());
  const std::string shorter = run({"diff", one, file(u8"short", bytes)}).out;
  EXPECT_NE(shorter.find("HideUI: on -> (not there)\n"), std::string::npos) << shorter;
}

TEST_F(CommandLineTest, TakesARecordBackWhenToldTo) {
  const std::string name = sample();
  const std::string record = file(u8"record", "");
  ASSERT_EQ(run({"record", name, "-o", record}).status, 0);
  EXPECT_EQ(run({"apply", name, record}).status, 1) << "nothing differs";
  std::string bytes = test::readBytes(folder_ / "record");
  bytes[offsetof(HotkeyBlock, zoomValue)] = 77;
  test::writeBytes(folder_ / "record", bytes);

  const std::string change = "setting group 2, ZoomValue: 120 -> 77\n";
  EXPECT_EQ(run({"apply", name, record}).out, change);
  EXPECT_EQ(run({"apply", name, record}).out, change) << "it was written";
  const Result written = run({"apply", name, record, "--write"});
  EXPECT_EQ(written.status, 0);
  EXPECT_EQ(written.out, change);
  EXPECT_NE(run({"show", name}).out.find("ZoomValue                 77\n"), std::string::npos);
  EXPECT_NE(run({"show", name}).out.find("save time                 1404738022\n"),
            std::string::npos);
}

TEST_F(CommandLineTest, ShowsWhatASaveWouldDoToTheGamesFile) {
  const std::string name = sample();
  const std::string game = file(
      u8"game.txt", "[Gameplay]\r\ncustomkeys=0\r\n\r\n[Commandbar Hotkeys 20]\r\nHotkey=1\r\n");
  const Result result = run({"prefs", name, game});
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.out.find("-customkeys=0\n+customkeys=2\n"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("+[Commandbar Hotkeys 20]\n"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("-[Commandbar Hotkeys 20]\n-Hotkey=1\n"), std::string::npos);
  const auto lines = nlohmann::json::parse(run({"prefs", "--json", name, game}).out);
  EXPECT_GT(lines.size(), 2U);
  EXPECT_EQ(test::readBytes(folder_ / "game.txt").substr(0, 26), "[Gameplay]\r\ncustomkeys=0\r\n");
}

// A clean file could not hold it, so the damaged one stays.
TEST_F(CommandLineTest, LosesNoCharacterInARepair) {
  const std::string text =
      "\xEF\xBB\xBF<KeyInfo><KeyInfo_0><QuickChat><Chat id=\"0\">\xF0\x9F\x98\x80</Chat>"
      "</QuickChat></KeyInfo_0></KeyInfo>";
  const std::string broken = file(u8"broken.xml", text);
  const Result result = run({"repair", broken});
  EXPECT_EQ(result.status, 2);
  EXPECT_NE(result.err.find("cannot hold"), std::string::npos) << result.err;
  EXPECT_EQ(test::readBytes(folder_ / "broken.xml"), text);
  EXPECT_EQ(folder_.listing(), "broken.xml\n");
}

TEST_F(CommandLineTest, ShowsNoControlCharacters) {
  const std::string text =
      "<KeyInfo><LastSaveTime>1</LastSaveTime><KeyInfo_0><ZoomValue>&#27;[2J\n7</ZoomValue>"
      "<QuickChat><Chat id=\"0\">a&#27;[2J</Chat></QuickChat></KeyInfo_0></KeyInfo>";
  const std::string name = file(u8"escapes.xml", text);
  EXPECT_NE(run({"check", name}).out.find("\"?[2J 7\" is no number"), std::string::npos)
      << run({"check", name}).out;
  EXPECT_NE(run({"show", name}).out.find("a?[2J\n"), std::string::npos);
}

TEST_F(CommandLineTest, RepairsADamagedFile) {
  const std::string good = test::readBytes(test::sampleData("KeyInfo.xml"));
  const std::string broken = file(u8"broken.xml", good.substr(0, 5000));
  EXPECT_EQ(run({"check", broken}).status, 2);
  const Result repaired = run({"repair", broken});
  EXPECT_EQ(repaired.status, 0) << repaired.err;
  EXPECT_EQ(run({"check", broken}).status, 0) << run({"check", broken}).out;
  const std::string shown = run({"show", broken, "--scheme", "1"}).out;
  EXPECT_NE(shown.find("hero skill 1              Q\n"), std::string::npos) << shown;
  EXPECT_NE(folder_.listing().find("broken.xml.damaged\n"), std::string::npos) << folder_.listing();

  EXPECT_EQ(repaired.out, broken + ": repaired; the damaged file is " + broken + ".damaged\n");
  EXPECT_EQ(test::readBytes(folder_ / "broken.xml.damaged"), good.substr(0, 5000));
  EXPECT_EQ(run({"repair", broken}).out, broken + ": nothing to repair\n");

  // Nothing that was kept before is written over.
  test::writeBytes(folder_ / "broken.xml", good.substr(0, 4000));
  const auto answer = nlohmann::json::parse(run({"repair", "--json", broken}).out);
  EXPECT_EQ(answer["kept"], broken + ".damaged-2");
  EXPECT_EQ(test::readBytes(folder_ / "broken.xml.damaged"), good.substr(0, 5000));
  EXPECT_EQ(run({"repair", file(u8"foreign", "<html/>")}).status, 2);
  EXPECT_EQ(test::readBytes(folder_ / "foreign"), "<html/>");
}

TEST_F(CommandLineTest, ListsKeysAndWhoUsesThem) {
  const std::string names = run({"keys"}).out;
  EXPECT_NE(names.find("Q                 81  20736\n"), std::string::npos) << names;
  const std::string uses = run({"keys", sample(), "--scheme", "1"}).out;
  EXPECT_NE(uses.find("Q                        20736  hero skill 1\n"), std::string::npos) << uses;
  EXPECT_NE(uses.find("quick-chat phrase 8\n"), std::string::npos);
}

}  // namespace
}  // namespace brennet::cli
