#include "gameside/Dota7KeyInfoManager.h"

#include <new>

namespace brennet {

using platform::RegistryKey;
using platform::RegistryValue;

Dota7KeyInfoManager& Dota7KeyInfoManager::instance() {
  static Dota7KeyInfoManager manager;
  return manager;
}

void Dota7KeyInfoManager::record(std::u16string_view objectName, Dota7Change change) {
  records_.insert_or_assign(std::u16string(objectName), std::move(change));
}

void Dota7KeyInfoManager::writeValue(const Dota7Change& change) {
  RegistryKey key(change.keyPath);
  if (!key.isOpen()) return;
  if (!change.valueName.empty()) {
    put(key, {change.keyPath, change.valueName}, platform::dwordValue(change.value));
  }
  if (change.secondValue != 0) {
    put(key, {change.keyPath, change.secondName}, platform::dwordValue(change.secondValue));
  }
  if (change.kind == Dota7Change::Kind::NumbersAndText) {
    put(key, {change.keyPath, change.textName},
        {platform::kRegistryBinary, change.hasText ? dota7TextBytes(change.text) : std::string()});
  }
}

// Where it is not known what stands in a place, it could not be given back: it is not written to.
void Dota7KeyInfoManager::put(RegistryKey& key, Place place, const RegistryValue& value) {
  RegistryKey::Reading reading = key.read(place.second);
  if (!reading.known || reading.value == value) return;
  // Kept first: what memory runs out for must not have been written.
  const auto [kept, isFirst] = before_.try_emplace(std::move(place), std::move(reading.value));
  const bool isWritten = key.write(kept->first.second, value);
  if (!isWritten && isFirst) before_.erase(kept);
}

void Dota7KeyInfoManager::writeRecords() {
  for (const auto& [objectName, change] : records_) writeValue(change);
}

void Dota7KeyInfoManager::acceptChanges() {
  writeRecords();
  records_.clear();
  before_.clear();
}

void Dota7KeyInfoManager::cancelChanges() {
  records_.clear();
  // What cannot be given back is not kept either: it would come back in the middle of a later run.
  const Before before = std::exchange(before_, {});
  for (const auto& [place, value] : before) giveBack(place, value);
  settings_.load();
}

void Dota7KeyInfoManager::giveBack(const Place& place, const std::optional<RegistryValue>& value) {
  try {
    RegistryKey key(place.first);
    if (value) {
      key.write(place.second, *value);
    } else {
      key.remove(place.second);
    }
  } catch (const std::bad_alloc&) {
    // The other values are given back all the same.
  }
}

bool Dota7KeyInfoManager::PlaceOrder::operator()(const Place& a, const Place& b) const {
  const int path = platform::compareRegistryNames(a.first, b.first);
  return path != 0 ? path < 0 : platform::compareRegistryNames(a.second, b.second) < 0;
}

void Dota7KeyInfoManager::refresh() {
  records_.clear();
  settings_.load();
}

}  // namespace brennet
