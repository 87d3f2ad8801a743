#include "gameside/prefs/War3PrefsFile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Files.h"
#include "platform/Folders.h"

namespace brennet {
namespace {

constexpr char kEndOfTextFile = '\x1A';

// The game's own sections that ours replace, wherever in the header the words are.
constexpr std::array<std::string_view, 2> kHotkeyHeaders = {"[Commandbar Hotkeys ",
                                                            "[Inventory Hotkeys "};

// The text of a file as the C runtime of Windows reads it in text mode into a buffer of the file's
// size: CR LF becomes LF, 0x1A ends the text, and the rest of the buffer is zeros.
std::string textOfFile(std::string_view fileBytes) {
  const std::string_view live = fileBytes.substr(0, fileBytes.find(kEndOfTextFile));
  std::string text;
  text.reserve(fileBytes.size());
  for (std::size_t at = 0; at < live.size(); ++at) {
    const bool endsLine = live[at] == '\r' && at + 1 < live.size() && live[at + 1] == '\n';
    if (!endsLine) text.push_back(live[at]);
  }
  text.resize(fileBytes.size());
  return text;
}

// The reverse: every LF becomes CR LF.
void appendAsFileBytes(std::string_view text, std::string& fileBytes) {
  for (const char character : text) {
    if (character == '\n') fileBytes.push_back('\r');
    fileBytes.push_back(character);
  }
}

bool isHotkeyHeader(std::string_view header) {
  return std::any_of(kHotkeyHeaders.begin(), kHotkeyHeaders.end(), [&](std::string_view words) {
    return header.find(words) != std::string_view::npos;
  });
}

// Takes the line that starts at `at` off `text`, without its LF; `at` moves behind it. The last
// line needs no LF.
std::string_view nextLine(std::string_view text, std::size_t& at) {
  const std::size_t end = std::min(text.find('\n', at), text.size());
  const std::string_view line = text.substr(at, end - at);
  at = end + 1;
  return line;
}

// The position behind the first line that equals `wanted`; the end of `text` if there is none.
std::size_t behindLine(std::string_view text, std::string_view wanted) {
  std::size_t at = 0;
  while (at < text.size()) {
    if (nextLine(text, at) == wanted) return at;
  }
  return text.size();
}

// Where the value of the pair starts that `line` is, or npos where the line is not a pair `key`.
std::size_t valueStart(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  const bool found = equals != std::string_view::npos && line.substr(0, equals) == key;
  return found ? equals + 1 : std::string_view::npos;
}

}  // namespace

platform::Path War3PrefsFile::gamePath() {
  const std::string folder = platform::profileFolder();
  if (folder.empty()) return {};
  return platform::pathFromNarrow(folder + platform::gamePreferencesSuffix());
}

War3PrefsFile::War3PrefsFile() : War3PrefsFile(gamePath()) {}

War3PrefsFile::War3PrefsFile(platform::Path path) : path_(std::move(path)) {
  if (path_.empty()) return;
  std::string bytes;
  if (const std::error_code error = platform::readFile(path_, bytes, kLargestFile, patience_)) {
    if (!platform::isMissing(error)) path_.clear();
    return;
  }
  parseText(textOfFile(bytes));
  fileBytes_ = std::move(bytes);
}

War3PrefsFile War3PrefsFile::parse(std::string_view fileBytes) {
  War3PrefsFile file{platform::Path()};
  file.parseText(textOfFile(fileBytes));
  return file;
}

void War3PrefsFile::parseText(std::string_view text) {
  plainText_.reserve(text.size());
  PlainSection currentSection;
  for (std::size_t at = 0; at < text.size();) parseLine(nextLine(text, at), currentSection);
  closeSection(currentSection);
}

void War3PrefsFile::parseLine(std::string_view line, PlainSection& currentSection) {
  if (!line.empty() && line.front() == '[') {
    closeSection(currentSection);
    currentSection.header = line;
    currentSection.pairs.clear();
  } else if (line.find('=') != std::string_view::npos) {
    currentSection.pairs.append(line).push_back('\n');
  }
}

void War3PrefsFile::closeSection(PlainSection& section) {
  if (section.header.empty() || isHotkeyHeader(section.header)) return;
  plainText_.append(section.header).append("\n").append(section.pairs).append("\n");
}

void War3PrefsFile::setValue(std::string_view key, std::string_view section,
                             std::string_view value) {
  // Only a header can equal a header: no pair begins with a bracket.
  std::size_t at = behindLine(plainText_, std::string("[").append(section).append("]"));
  while (at < plainText_.size()) {
    const std::size_t lineStart = at;
    const std::string_view line = nextLine(plainText_, at);
    if (line.empty()) return;  // the section ends
    const std::size_t start = valueStart(line, key);
    if (start != std::string_view::npos) {
      plainText_.replace(lineStart + start, line.size() - start, value);
      return;
    }
  }
}

void War3PrefsFile::setCustomKeys(bool on) {
  setValue("customkeys", "Gameplay", on ? "2" : "0");  // the game's word for on is 2, not 1
}

void War3PrefsFile::addHotkeySection(const War3HotkeySection& entry) {
  const std::string name = sectionName(entry);
  bool replaced = false;
  for (War3HotkeySection& section : hotkeySections_) {
    if (sectionName(section) != name) continue;
    section = entry;
    replaced = true;
  }
  if (!replaced) hotkeySections_.push_back(entry);
}

std::string War3PrefsFile::serialize() const {
  std::string bytes;
  const auto lineEnds = std::count(plainText_.begin(), plainText_.end(), '\n');
  bytes.reserve(plainText_.size() + static_cast<std::size_t>(lineEnds));
  for (const War3HotkeySection& section : hotkeySections_) {
    appendAsFileBytes(sectionText(section), bytes);
  }
  appendAsFileBytes(plainText_, bytes);
  return bytes;
}

bool War3PrefsFile::save() {
  if (path_.empty()) return false;
  std::string bytes = serialize();
  if (fileBytes_ == bytes) {
    platform::removeLeftovers(path_);
    return true;
  }
  platform::Patience patience = std::exchange(patience_, platform::Patience());
  if (platform::replaceFile(path_, bytes, platform::OldContent::Drop, patience)) return false;
  fileBytes_ = std::move(bytes);
  return true;
}

}  // namespace brennet
