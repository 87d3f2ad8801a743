#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/HotkeyConfig.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet::fuzz {

// The files around a session: a folder for settings, a profile with the game's preference file, and
// a twin of that profile, in which it is found out what the game's file should become.
class SessionWorld {
 public:
  // What a settings path leads to.
  enum Place : std::size_t {
    kFile,
    kOtherFile,      // missing until it is saved
    kFolder,         // no file
    kMissingFolder,  // a file in a folder that a save creates
    kMissingTwice,   // a file in a folder in a folder; a save does not create both
    kNowhere,        // an empty path
    kTooLong,        // a name that no file can have
    kBelowFile,      // a file in something that is no folder
    kNeutral,        // another file
    kPlaces,
  };
  using Files = std::map<std::string, std::string>;

  SessionWorld();

  // As it was at the beginning: no files but one that is in the way of kBelowFile.
  void clear();

  [[nodiscard]] std::wstring pathOf(Place place) const;
  [[nodiscard]] static bool canBeWritten(Place place);
  // The content of a settings file; nothing where there is none.
  [[nodiscard]] std::optional<std::string> settingsAt(Place place) const;
  void writeSettings(Place place, std::string_view bytes) const;
  // All files of the folder for settings, temporary ones included, by their paths in it.
  [[nodiscard]] Files settingsFiles() const;
  // Takes the old files away that a save has put aside, and gives their contents.
  std::vector<std::string> takeKeptFiles() const;
  // The name that the file of `place` has there.
  [[nodiscard]] static std::string nameOf(Place place);

  void writePreferences(std::string_view bytes) const;
  [[nodiscard]] std::optional<std::string> preferences() const;
  // What becomes of the game's file that is `now` when `config` is written to it.
  [[nodiscard]] std::optional<std::string> preferencesAfter(
      HotkeyConfig& config, const std::optional<std::string>& now) const;
  // Whether nothing but the game's file stands in its folder.
  [[nodiscard]] bool isProfileTidy() const;

 private:
  test::TempFolder folder_;
  test::ScopedProfile profile_;
};

// A settings file that names whatever a reset would leave as it is.
[[nodiscard]] std::string neutralSettings();

// What a load of a settings file with these bytes makes of `config`, and its result. Nothing stands
// for a file that cannot be read.
bool loadBytes(HotkeyConfig& config, const std::optional<std::string>& bytes);

// The settings file that a save of `config` writes.
[[nodiscard]] std::string savedBytes(const HotkeyConfig& config, std::uint32_t saveTime);

}  // namespace brennet::fuzz
