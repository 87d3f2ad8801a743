#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/HotkeyScheme.h"
#include "model/LoadReport.h"

// Setting groups on their way from one player to another, in settings files of the usual format.
// Such a file is not the player's own: unlike HotkeyConfig::Load and Save, these functions leave
// the game's preference file alone.
namespace brennet {

// How reading or writing such a file went.
struct SchemeFileResult {
  enum class Outcome : std::uint8_t {
    Done,
    Lossy,      // written, but the file's encoding lacks some characters of the phrases
    FileError,  // could not be read or written; the file is as it was
    Damaged,    // could be read, but something in it is wrong or missing
    Foreign,    // no settings file, or one without settings
  };

  Outcome outcome = Outcome::Done;
  std::u16string message;  // the system's, for FileError

  friend bool operator==(const SchemeFileResult&, const SchemeFileResult&) = default;
};

// One scheme of a settings file, read as a load reads it.
struct SchemeInFile {
  int number = 0;  // 0 to 2
  HotkeyScheme scheme;
  LoadReport report;  // what could not be used of it, all with this number
};

// Reads the schemes of the settings file at `path` that hold anything; the first one also if it is
// there and empty.
// `schemes` is left as it was unless the outcome is Done. Throws std::bad_alloc.
[[nodiscard]] SchemeFileResult readSchemeFile(std::u16string_view path,
                                              std::vector<SchemeInFile>& schemes);

// Makes the file at `path` a settings file that has `scheme` as its first and current one and no
// keys, phrases or switches in the others. The disk holds the whole old or the whole new file at
// every moment. `lastSaveTime` is the host's own value. Throws std::bad_alloc.
[[nodiscard]] SchemeFileResult writeSchemeFile(std::u16string_view path, const HotkeyScheme& scheme,
                                               std::uint32_t lastSaveTime);

}  // namespace brennet
