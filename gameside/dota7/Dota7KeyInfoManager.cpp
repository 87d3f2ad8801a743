#include "gameside/dota7/Dota7KeyInfoManager.h"

#include <utility>
#include <vector>

namespace brennet {
namespace {

using platform::RegistryKey;
using platform::RegistryValue;

struct Part {
  std::u16string_view name;
  RegistryValue value;
};

// The values of a change, in the order in which they are written.
std::vector<Part> partsOf(const Dota7Change& change) {
  std::vector<Part> parts;
  if (!change.valueName.empty()) {
    parts.push_back({change.valueName, platform::dwordValue(change.value)});
  }
  if (change.secondValue != 0) {
    parts.push_back({change.secondName, platform::dwordValue(change.secondValue)});
  }
  if (change.kind == Dota7Change::Kind::NumbersAndText) {
    parts.push_back(
        {change.textName,
         {platform::kRegistryBinary, change.hasText ? dota7TextBytes(change.text) : ""}});
  }
  return parts;
}

// Calls `visit` with the open key, the place and the value of each part of the changes. Keys that
// cannot be opened are skipped.
template <class Visit>
void forEachPart(std::span<const Dota7Change> changes, Visit visit) {
  for (const Dota7Change& change : changes) {
    RegistryKey key(change.keyPath);
    if (!key.isOpen()) continue;
    for (const Part& part : partsOf(change)) {
      visit(key, Dota7Place(change.keyPath, part.name), part.value);
    }
  }
}

}  // namespace

void Dota7KeyInfoManager::record(std::u16string_view objectName, Dota7Change change) {
  records_.insert_or_assign(std::u16string(objectName), std::move(change));
}

void Dota7KeyInfoManager::beginRun() {
  records_.clear();
  endRun(giveBack(before_));
  before_ = journal_.recover();
}

void Dota7KeyInfoManager::writeValues(std::span<const Dota7Change> changes) {
  forEachPart(changes,
              [this](const RegistryKey& key, const Dota7Place& place, const RegistryValue& value) {
                noteFor(place, key.read(place.second), value);
              });
  writeJournal();
  forEachPart(changes, [this](RegistryKey& key, const Dota7Place& place,
                              const RegistryValue& value) { put(key, place, value); });
}

void Dota7KeyInfoManager::apply(std::span<const Dota7FieldChange> changes) {
  std::vector<Dota7Change> values;
  for (const Dota7FieldChange& field : changes) values.push_back(field.change);
  writeValues(values);
  for (const Dota7FieldChange& field : changes) record(field.objectName, field.change);
}

void Dota7KeyInfoManager::noteFor(const Dota7Place& place, const RegistryKey::Reading& now,
                                  const Content& value) {
  if (!now.known || now.value == value) return;
  if (note(before_, place, now.value, value).second) isJournalBehind_ = true;
}

void Dota7KeyInfoManager::writeJournal() {
  if (isJournalBehind_) journal_.write(before_);
  isJournalBehind_ = false;
}

// A value whose old content is unknown could not be restored, so it is not written. The journal
// comes first: if memory runs out, nothing may have been written. Returns whether the value is
// there.
bool Dota7KeyInfoManager::put(RegistryKey& key, const Dota7Place& place, const Content& value) {
  const RegistryKey::Reading now = key.read(place.second);
  if (!now.known || now.value == value) return now.known;
  noteFor(place, now, value);
  writeJournal();
  Content& after = step_.try_emplace(place, Dota7Edit{now.value, now.value}).first->second.after;
  Content next = value;
  if (!(value ? key.write(place.second, *value) : key.remove(place.second))) return false;
  before_.find(place)->second.isChanged = true;
  after = std::move(next);
  return true;
}

Dota7Step Dota7KeyInfoManager::takeStep() {
  std::erase_if(step_, [](const auto& entry) { return entry.second.before == entry.second.after; });
  return std::exchange(step_, {});
}

// The journal is written once, before the first value changes.
bool Dota7KeyInfoManager::restore(const Dota7Step& step, Content Dota7Edit::*side) {
  for (const auto& [place, edit] : step) {
    noteFor(place, RegistryKey(place.first).read(place.second), edit.*side);
  }
  writeJournal();
  bool isRestored = true;
  for (const auto& [place, edit] : step) {
    RegistryKey key(place.first);
    isRestored = put(key, place, edit.*side) && isRestored;
  }
  step_.clear();
  refresh();
  return isRestored;
}

Dota7Settings Dota7KeyInfoManager::settingsBefore() {
  Dota7Settings settings(names_, *this);
  settings.setCast(settings_.cast());
  settings.loadAsBefore(before_);
  return settings;
}

void Dota7KeyInfoManager::writeRecords() {
  std::vector<Dota7Change> changes;
  for (const auto& [objectName, change] : records_) changes.push_back(change);
  writeValues(changes);
}

void Dota7KeyInfoManager::acceptChanges() {
  writeRecords();
  for (const std::u16string_view path : {kDota7ControlPath, kDota7PhrasesPath}) {
    if (!before_.empty()) RegistryKey(path).flush();
  }
  records_.clear();
  endRun(true);
}

void Dota7KeyInfoManager::cancelChanges() {
  records_.clear();
  endRun(giveBack(before_));
  settings_.load();
}

// What cannot be restored is not kept in memory: it would be restored in the middle of a later run.
void Dota7KeyInfoManager::endRun(bool isUndone) noexcept {
  before_.clear();
  step_.clear();
  isJournalBehind_ = false;
  if (isUndone) {
    journal_.drop();
  } else {
    journal_.leave();
  }
}

void Dota7KeyInfoManager::refresh() {
  records_.clear();
  settings_.load();
}

}  // namespace brennet
