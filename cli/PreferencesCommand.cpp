#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "cli/Commands.h"
#include "cli/Files.h"
#include "cli/LineDifference.h"
#include "cli/Output.h"
#include "gameside/prefs/War3PrefsFile.h"
#include "model/GamePreferences.h"

namespace brennet::cli {
namespace {

using In = ComparedLine::In;

constexpr std::size_t kContext = 3;  // lines around a difference

bool differs(const ComparedLine& line) {
  return line.in != In::Both;
}

// Whether the line, or one that is near, differs.
bool isShown(const std::vector<ComparedLine>& lines, std::size_t at) {
  const std::size_t first = at < kContext ? 0 : at - kContext;
  const std::size_t end = std::min(at + kContext + 1, lines.size());
  return std::any_of(lines.begin() + static_cast<std::ptrdiff_t>(first),
                     lines.begin() + static_cast<std::ptrdiff_t>(end), differs);
}

void print(const std::vector<ComparedLine>& lines, std::ostream& out) {
  bool wasShown = true;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const bool shown = isShown(lines, i);
    if (shown && !wasShown) out << "...\n";
    if (shown) out << static_cast<char>(lines[i].in) << cli::shown(lines[i].line) << '\n';
    wasShown = shown;
  }
}

void printDifferent(const std::vector<ComparedLine>& lines, std::ostream& out) {
  auto all = nlohmann::ordered_json::array();
  for (const ComparedLine& line : lines) {
    if (!differs(line)) continue;
    all.push_back({{"change", line.in == In::Before ? "removed" : "added"}, {"line", line.line}});
  }
  printJson(all, out);
}

// Reads the file as it is: what a save would first put right stays.
std::string preferencesBytes(const std::string& name) {
  if (!name.empty()) return readBytes(name);
  const platform::Path path = War3PrefsFile::gamePath();
  std::error_code error;
  if (path.empty() || !std::filesystem::exists(path, error)) return {};
  return readBytes(path, "the game's preference file");
}

}  // namespace

ExitStatus comparePreferences(const std::string& file, const std::string& preferences,
                              Answer answer) {
  HotkeyConfig config = readSettings(file);
  const std::string before = preferencesBytes(preferences);
  War3PrefsFile game = War3PrefsFile::parse(before);
  updatePreferences(config, game);
  const std::string after = game.serialize();
  const std::vector<ComparedLine> lines = compareLines(before, after);
  if (answer.isJson) {
    printDifferent(lines, answer.out);
  } else {
    print(lines, answer.out);
  }
  return before == after ? kDone : kFound;
}

}  // namespace brennet::cli
