#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gameside/prefs/War3HotkeySection.h"
#include "platform/Paths.h"
#include "platform/Patience.h"

namespace brennet {

// Warcraft III's own preference file, read in order to replace its hotkey sections.
//
// Reading drops the game's hotkey sections and every line that is neither a section header nor a
// "key=value" pair, and pairs before the first header; all other sections stay in their order,
// their headers and pairs byte for byte. Writing puts the added hotkey sections first and the plain
// sections after them.
//
// Only std::bad_alloc is thrown, and nothing is shown: a missing file counts as empty; one that
// cannot be read at the moment, or cannot be written, stays as it is. Texts are bytes; the game's
// encoding does not matter here.
class War3PrefsFile {
 public:
  // A section while its lines are being read. `pairs` holds "key=value" lines, each closed by LF.
  struct PlainSection {
    std::string header;  // the whole bracketed line, empty before the first header
    std::string pairs;
  };

  // Reads the game's file below the user's profile folder. If the system knows no profile folder,
  // there is nothing to read and save() does nothing.
  War3PrefsFile();

  // The largest file that is read, in bytes. The game's own has some 10 KiB.
  static constexpr std::uint64_t kLargestFile = 256U << 20U;

  // Reads the file at `path`. An empty path stands for no file. After a file that exists but cannot
  // be read, or is larger than kLargestFile, save() does nothing.
  explicit War3PrefsFile(platform::Path path);

  // Reads the content of a file without a file: save() does nothing.
  [[nodiscard]] static War3PrefsFile parse(std::string_view fileBytes);

  // Where the game keeps the user's file; empty if the system knows no profile folder.
  [[nodiscard]] static platform::Path gamePath();

  // The bytes that save() writes; every line ends in CR LF.
  [[nodiscard]] std::string serialize() const;

  // Takes in the next line, without its LF. A header closes `currentSection`, which is kept unless
  // it holds hotkeys or has no header, and starts the next one in it.
  void parseLine(std::string_view line, PlainSection& currentSection);

  // Replaces the value of the first pair named `key` in the first plain section named `section`
  // (without brackets; compared byte for byte). Adds nothing if there is no such pair.
  void setValue(std::string_view key, std::string_view section, std::string_view value);

  // Sets whether the game uses the hotkey sections: "customkeys" in the section "Gameplay".
  void setCustomKeys(bool on);

  // Adds a hotkey section after those already added. If there are sections of the same name, each
  // of them becomes `entry` and none is added.
  void addHotkeySection(const War3HotkeySection& entry);

  // Writes the file, unless it already held these bytes. The file is replaced as a whole; one that
  // cannot be opened for writing is left untouched. Returns whether the file holds the content.
  bool save();

 private:
  void parseText(std::string_view text);
  void closeSection(PlainSection& section);

  platform::Path path_;  // empty if there is nothing to write to
  // For the limit on waiting, reading the file and then writing it are one operation.
  platform::Patience patience_;
  // What the file held when it was last read or written; empty where there was none.
  std::optional<std::string> fileBytes_;
  std::vector<War3HotkeySection> hotkeySections_;
  // The plain sections as they are written: header, pairs, blank line, each closed by LF. One text
  // takes about the memory of the file; a list of millions of tiny sections would take dozens of
  // times as much, in a process of 2 GB that belongs to the host.
  std::string plainText_;
};

}  // namespace brennet
