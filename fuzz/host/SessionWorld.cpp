#include "fuzz/host/SessionWorld.h"
#include "markup/DeclaredEncoding.h"
#include "markup/ResultLog.h"

#include <filesystem>
#include <system_error>

#include "markup/MarkupDocument.h"
#include "markup/text/TextEncoding.h"
#include "model/GamePreferences.h"

namespace brennet::fuzz {
namespace {

namespace fs = std::filesystem;

constexpr char kSettings[] = "settings";
constexpr char kProfile[] = "profile";
constexpr char kTwin[] = "twin";
constexpr char kPreferences[] = "Documents/Warcraft III/War3Preferences.txt";

std::optional<std::string> contentOf(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return std::nullopt;
  return test::readBytes(file);
}

}  // namespace

SessionWorld::SessionWorld() : profile_(folder_ / kProfile) {}

void SessionWorld::clear() {
  for (const char* const folder : {kSettings, kProfile, kTwin}) fs::remove_all(folder_ / folder);
  fs::create_directory(folder_ / kSettings);
  for (const char* const profile : {kProfile, kTwin}) {
    fs::create_directories((folder_ / profile / kPreferences).parent_path());
  }
  test::writeBytes(folder_ / kSettings / "in-the-way", "");
}

std::string SessionWorld::nameOf(Place place) {
  switch (place) {
    case kFile:
      return "KeyInfo.xml";
    case kOtherFile:
      return "other.xml";
    case kMissingFolder:
      return "new/KeyInfo.xml";
    case kMissingTwice:
      return "one/two/KeyInfo.xml";
    case kTooLong:
      return std::string(300, 'x');
    case kBelowFile:
      return "in-the-way/KeyInfo.xml";
    case kNeutral:
      return "neutral.xml";
    default:
      return {};
  }
}

std::wstring SessionWorld::pathOf(Place place) const {
  if (place == kNowhere) return {};
  return (folder_ / kSettings / nameOf(place)).wstring();
}

bool SessionWorld::canBeWritten(Place place) {
  return place == kFile || place == kOtherFile || place == kMissingFolder || place == kNeutral;
}

std::optional<std::string> SessionWorld::settingsAt(Place place) const {
  return canBeWritten(place) ? contentOf(folder_ / kSettings / nameOf(place)) : std::nullopt;
}

void SessionWorld::writeSettings(Place place, std::string_view bytes) const {
  test::writeBytes(folder_ / kSettings / nameOf(place), bytes);
}

SessionWorld::Files SessionWorld::settingsFiles() const {
  Files files;
  const fs::path folder = folder_ / kSettings;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    files[entry.path().lexically_relative(folder).string()] = test::readBytes(entry.path());
  }
  return files;
}

std::vector<std::string> SessionWorld::takeKeptFiles() const {
  std::vector<std::string> contents;
  const fs::path folder = folder_ / kSettings;
  for (const auto& [name, content] : settingsFiles()) {
    if (name.find(".kept-") == std::string::npos) continue;
    contents.push_back(content);
    fs::remove(folder / name);
  }
  return contents;
}

void SessionWorld::writePreferences(std::string_view bytes) const {
  test::writeBytes(folder_ / kProfile / kPreferences, bytes);
}

std::optional<std::string> SessionWorld::preferences() const {
  return contentOf(folder_ / kProfile / kPreferences);
}

std::optional<std::string> SessionWorld::preferencesAfter(
    HotkeyConfig& config, const std::optional<std::string>& now) const {
  const fs::path file = folder_ / kTwin / kPreferences;
  fs::remove(file);
  if (now) test::writeBytes(file, *now);
  const test::ScopedProfile twin(folder_ / kTwin);
  writeGamePreferences(config);
  return contentOf(file);
}

bool SessionWorld::isProfileTidy() const {
  const fs::path file = folder_ / kProfile / kPreferences;
  for (const fs::directory_entry& entry : fs::directory_iterator(file.parent_path())) {
    if (entry.path() != file) return false;
  }
  return true;
}

std::string neutralSettings() {
  std::string text = "<KeyInfo><LastSaveTime>1</LastSaveTime>";
  for (int scheme = 0; scheme < HotkeyConfig::kSchemes; ++scheme) {
    const std::string element = "KeyInfo_" + std::to_string(scheme) + ">";
    text += "<" + element;
    for (const char* const keys : {"HeroSkillKey>", "ItemKey>"}) {
      text += std::string("<") + keys;
      for (const int id : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 97, 98, 100, 101, 103, 104}) {
        text += "<Key id=\"" + std::to_string(id) + "\" autocast=\"0\">65280</Key>";
      }
      text += std::string("</") + keys;
    }
    text += "<DisableLeftAlt>0</DisableLeftAlt><DisableLeftAltShowHP>0</DisableLeftAltShowHP>";
    text += "<QuickChat>";
    for (int id = 0; id < 8; ++id) text += "<Chat id=\"" + std::to_string(id) + "\">x</Chat>";
    text += "</QuickChat></" + element;
  }
  return text + "</KeyInfo>";
}

bool loadBytes(HotkeyConfig& config, const std::optional<std::string>& bytes) {
  config.Reset();
  if (!bytes) return false;
  ResultLog log;
  MarkupDocument document;
  return document.setDoc(decodeText(*bytes, declaredEncodingOfBytes, log).text) &&
         config.loadFrom(document);
}

std::string savedBytes(const HotkeyConfig& config, std::uint32_t saveTime) {
  MarkupDocument document;
  config.saveTo(document, saveTime);
  ResultLog log;
  return encodeText(document.doc(), u"gb2312", log);
}

}  // namespace brennet::fuzz
