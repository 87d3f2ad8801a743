#include "fuzz/host/Session.h"

#include <algorithm>
#include <cstring>

#include "fuzz/Target.h"
#include "model/BlockFiller.h"
#include "model/BlockMerger.h"
#include "model/KeyConflicts.h"

namespace brennet::fuzz {
namespace {

constexpr std::size_t kMostSteps = 24;
constexpr std::size_t kSizeField = 4;

std::size_t sharedSize(std::uint32_t announced) {
  return std::min<std::size_t>(announced, sizeof(HotkeyBlock));
}

bool areSame(const HotkeyBlock& left, const HotkeyBlock& right) {
  return std::memcmp(&left, &right, sizeof(left)) == 0;
}

bool isFaulty(const Faults& faults) {
  return faults.failingAllocation.has_value() || faults.room.has_value();
}

}  // namespace

void Session::run(std::string_view script) {
  start();
  std::vector<Step> steps = stepsOf(script);
  if (steps.size() > kMostSteps) steps.resize(kMostSteps);
  for (const Step& step : steps) {
    perform(step);
    requireSameSettings();
  }
  require(world_.isProfileTidy());
}

void Session::start() {
  world_.clear();
  faults_ = {};
  settle();
}

void Session::perform(const Step& step) {
  if (step.name == "settings") return world_.writeSettings(SessionWorld::kFile, step.text);
  if (step.name == "preferences") {
    std::string text(step.text);
    for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2) {
      text.replace(at, 1, "\r\n");
    }
    return world_.writePreferences(text);
  }
  if (step.name == "memory" || step.name == "room") return prepareFaults(step);
  if (step.name == "load") load(step);
  if (step.name == "fill") fill(step);
  if (step.name == "apply") apply(step);
  if (step.name == "enable") enable(step);
  if (step.name == "read") read();
  if (step.name == "dialog") dialog(step);
  faults_ = {};
}

void Session::prepareFaults(const Step& step) {
  if (step.name == "room") {
    faults_.room = step.number(0);
  } else {
    faults_.failingAllocation = step.number(0);
    faults_.allFollowing = step.word(1) == "on";
  }
}

void Session::load(const Step& step) {
  if (!step.words.empty()) {
    return loadFrom(static_cast<Place>(step.number(0) % SessionWorld::kPlaces), faults_);
  }
  const Before before = this->before();
  require(!brennet_.LoadSettings(nullptr));
  requireUnchanged(before);
}

void Session::loadFrom(Place place, const Faults& faults) {
  const Before before = this->before();
  const std::wstring path = world_.pathOf(place);
  const bool expected = loadBytes(main_, world_.settingsAt(place));
  bool loaded = false;
  {
    const FaultsInForce inForce(faults);
    loaded = brennet_.LoadSettings(path.c_str());
  }
  require(world_.settingsFiles() == before.files);
  place_ = place;
  isUnread_ = !loaded;
  if (loaded) {
    require(expected);
    return requirePreferences(main_, before, isFaulty(faults));
  }
  requireUnchanged(before);
  if (!isFaulty(faults)) return require(!expected);
  // Whether the path was kept, and what of the file, cannot be told from outside.
  const std::uint32_t saveTime = brennet_.GetLastSaveTime();
  require(saveTime == 0 || saveTime == lastSaveTime_);
  settle();
  loadFrom(place, {});
}

// Both sides as if nothing had been before.
void Session::settle() {
  const std::string bytes = neutralSettings();
  world_.writeSettings(SessionWorld::kNeutral, bytes);
  require(brennet_.LoadSettings(world_.pathOf(SessionWorld::kNeutral).c_str()));
  require(loadBytes(main_, bytes));
  place_ = SessionWorld::kNeutral;
  isUnread_ = false;
}

void Session::fill(const Step& step) {
  const std::uint32_t size = step.number(0);
  HotkeyBlock wanted = expectedBlock();
  wanted.size = size;
  HotkeyBlock blank;
  std::memset(&blank, 0xA5, sizeof(blank));
  memory_.prepare(step.word(1), size, blank);
  const bool hasRoom = memory_.hasRoomFor(kSizeField) && memory_.hasRoomFor(sharedSize(size));
  bool filled = false;
  {
    const FaultsInForce inForce(faults_);
    filled = brennet_.FillHotkeyBlock(memory_.block());
  }
  require(filled == hasRoom);
  require(memory_.isUntouchedBehind(filled ? std::max<std::size_t>(size, kSizeField) : kSizeField));
  if (!filled) return;
  const HotkeyBlock content = memory_.content();
  require(std::memcmp(&content, &wanted, std::max(sharedSize(size), kSizeField)) == 0);
}

void Session::apply(const Step& step) {
  const std::uint32_t size = step.number(0);
  const std::uint32_t saveTime = step.number(2);
  HotkeyBlock given = expectedBlock();
  for (std::size_t word = 3; word + 1 < step.words.size(); word += 2) {
    const std::size_t at = std::min<std::size_t>(step.number(word), sizeof(given));
    const std::string bytes = bytesFromHex(step.word(word + 1)).substr(0, sizeof(given) - at);
    std::memcpy(reinterpret_cast<char*>(&given) + at, bytes.data(), bytes.size());
  }
  memory_.prepare(step.word(1), size, given);
  const bool isWritable = memory_.hasRoomFor(kSizeField) && memory_.hasRoomFor(size);

  bool hasChanged = false;
  if (isWritable) {
    HotkeyBlock current = expectedBlock();
    HotkeyBlock returned = current;
    const HotkeyBlock content = memory_.content();
    std::memcpy(&returned, &content, sharedSize(size));
    working_.ResetAndCopyFrom(main_);
    hasChanged = mergeBlock(current, returned, sharedSize(size), working_);
  }

  const Before before = this->before();
  std::int32_t result = 0;
  {
    const FaultsInForce inForce(faults_);
    result = brennet_.ApplyHotkeyBlock(memory_.block(), saveTime);
  }
  if (!isWritable || !hasChanged) {
    require(result == (isWritable ? -1 : 0));
    return requireUnchanged(before);
  }
  requireSaved(result == 0, working_, saveTime, before, isFaulty(faults_));
  require(result == 0 || result == -1);
  if (result == 0) main_.ResetAndCopyFrom(HotkeyConfig(working_));
}

void Session::enable(const Step& step) {
  const bool on = step.number(0) != 0;
  const std::uint32_t saveTime = step.number(1);
  const Before before = this->before();
  bool saved = false;
  {
    const FaultsInForce inForce(faults_);
    saved = brennet_.SetEnabled(on, saveTime);
  }
  if (on == main_.enable()) {
    require(!saved);
    return requireUnchanged(before);
  }
  main_.setEnable(on);
  requireSaved(saved, main_, saveTime, before, isFaulty(faults_));
}

void Session::read() {
  const HotkeyScheme& scheme = main_.scheme();
  const FaultsInForce inForce(faults_);
  require(brennet_.GetDisableLWinFlag() == scheme.DisableLWinFlag);
  require(brennet_.GetViewNoDragFlag() == scheme.ViewNoDragFlag);
  require(brennet_.GetStartJSQFlag() == scheme.StartJSQFlag);
  require(brennet_.IsCapsLockUsed() == isKeyUsed(scheme, 0x14));
  require(brennet_.IsShiftUsed() == isKeyUsed(scheme, 0x10));
}

void Session::dialog(const Step& step) {
  const std::wstring folder = world_.pathOf(SessionWorld::kFolder);
  const bool wantsResult = step.number(0) != 0;
  const Before before = this->before();
  bool saved = true;
  bool confirmed = true;
  {
    const FaultsInForce inForce(faults_);
    brennet_.SetDataFolder(wantsResult ? folder.c_str() : nullptr);
    confirmed = brennet_.ShowSettingsDialog(wantsResult ? &saved : nullptr, 5);
  }
  require(!confirmed && saved == !wantsResult);
  requireUnchanged(before);
}

Session::Before Session::before() const {
  return {world_.settingsFiles(), world_.preferences()};
}

void Session::requireUnchanged(const Before& before) const {
  require(world_.settingsFiles() == before.files);
  require(world_.preferences() == before.preferences);
}

// `config` was saved, or should have been. A new file that could not be written is no file.
void Session::requireSaved(bool result, HotkeyConfig& config, std::uint32_t saveTime,
                           const Before& before, bool isFaulty) {
  const bool canBeSaved = SessionWorld::canBeWritten(place_);
  require(!result || canBeSaved);
  require(result || isFaulty || !canBeSaved);
  SessionWorld::Files files = before.files;
  if (result) {
    const std::string bytes = savedBytes(config, saveTime);
    files[SessionWorld::nameOf(place_)] = bytes;
    HotkeyConfig again;
    require(loadBytes(again, bytes));
    require(again.LastSaveTime() == saveTime && again.enable() == config.enable() &&
            again.index() == config.index());
  }
  requirePutAside(result, before, isFaulty);
  require(world_.settingsFiles() == files);
  requirePreferences(config, before, isFaulty);
}

// What a load could not use stands beside the file that was saved over it.
void Session::requirePutAside(bool isSaved, const Before& before, bool isFaulty) {
  const std::vector<std::string> kept = world_.takeKeptFiles();
  const auto old = before.files.find(SessionWorld::nameOf(place_));
  const bool hasUnread = isUnread_ && old != before.files.end();
  require(kept.size() <= (isSaved && hasUnread ? 1U : 0U));
  require(kept.empty() || kept[0] == old->second);
  if (!isSaved) return;
  require(!hasUnread || !kept.empty() || isFaulty);
  isUnread_ = false;
}

void Session::requirePreferences(HotkeyConfig& config, const Before& before, bool isFaulty) const {
  const std::optional<std::string> now = world_.preferences();
  if (isFaulty && now == before.preferences) return;
  require(now == world_.preferencesAfter(config, before.preferences));
}

void Session::requireSameSettings() {
  HotkeyBlock block;
  std::memset(&block, 0xA5, sizeof(block));
  block.size = sizeof(block);
  require(brennet_.FillHotkeyBlock(&block));
  require(areSame(block, expectedBlock()));
  lastSaveTime_ = brennet_.GetLastSaveTime();
  require(lastSaveTime_ == main_.LastSaveTime());
}

HotkeyBlock Session::expectedBlock() {
  HotkeyBlock block;
  std::memset(&block, 0, sizeof(block));
  fillBlock(main_, block);
  return block;
}

}  // namespace brennet::fuzz
