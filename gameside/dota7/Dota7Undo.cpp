#include "gameside/dota7/Dota7Undo.h"

#include <algorithm>
#include <new>

namespace brennet {
namespace {

using platform::RegistryKey;
using platform::RegistryValue;

bool holds(const std::vector<RegistryValue>& values, const std::optional<RegistryValue>& value) {
  return value && std::ranges::find(values, *value) != values.end();
}

// Whether nothing is left to do.
bool giveBack(RegistryKey& key, const std::u16string& name, const Dota7Undo& undo) {
  const RegistryKey::Reading now = key.read(name);
  if (!now.known) return false;
  if (now.value == undo.old || (!undo.isChanged && !holds(undo.written, now.value))) return true;
  return undo.old ? key.write(name, *undo.old) : key.remove(name);
}

// Undoes the entries from `first` on that are of one key, and returns the first that is not. What
// does not reach the disk stays among them.
Dota7Undos::iterator giveBackKey(Dota7Undos& undos, Dota7Undos::iterator first) {
  const std::u16string path = first->first.first;
  RegistryKey key(path);
  auto end = first;
  while (end != undos.end() && platform::compareRegistryNames(end->first.first, path) == 0) {
    end->second.isGivenBack = false;
    try {
      end->second.isGivenBack = giveBack(key, end->first.second, end->second);
    } catch (const std::bad_alloc&) {
      // The other values are restored all the same.
    }
    ++end;
  }
  if (!key.flush()) return end;
  for (auto entry = first; entry != end;) {
    entry = entry->second.isGivenBack ? undos.erase(entry) : std::next(entry);
  }
  return end;
}

}  // namespace

bool Dota7PlaceOrder::operator()(const Dota7Place& a, const Dota7Place& b) const {
  const int path = platform::compareRegistryNames(a.first, b.first);
  return path != 0 ? path < 0 : platform::compareRegistryNames(a.second, b.second) < 0;
}

std::pair<Dota7Undo*, bool> note(Dota7Undos& undos, const Dota7Place& place,
                                 const std::optional<RegistryValue>& now,
                                 const std::optional<RegistryValue>& next) {
  auto [entry, isNew] = undos.try_emplace(place, Dota7Undo{now, {}, false});
  Dota7Undo& undo = entry->second;
  // Somebody else changed it before this run did: that is the old value.
  if (!undo.isChanged && now != undo.old && !holds(undo.written, now)) {
    undo = Dota7Undo{now, {}, false};
    isNew = true;
  }
  if (!next || holds(undo.written, next)) return {&undo, isNew};
  undo.written.push_back(*next);
  return {&undo, true};
}

bool giveBack(Dota7Undos& undos) noexcept {
  try {
    for (auto entry = undos.begin(); entry != undos.end();) entry = giveBackKey(undos, entry);
  } catch (const std::bad_alloc&) {
    // The rest stays.
  }
  return undos.empty();
}

}  // namespace brennet
