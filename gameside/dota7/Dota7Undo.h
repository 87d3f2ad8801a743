#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Registry.h"

// What it takes to undo the changes of one run of the dialog.
namespace brennet {

// Where a value stands: the path of a key, the name of the value.
using Dota7Place = std::pair<std::u16string, std::u16string>;

// By the registry's own rule: names that differ in their case alone are one place.
struct Dota7PlaceOrder {
  bool operator()(const Dota7Place& a, const Dota7Place& b) const;
};

struct Dota7Undo {
  std::optional<platform::RegistryValue> old;    // what stood there; nothing: no value
  std::vector<platform::RegistryValue> written;  // all that was to be put there since, each once
  // Whether the run that is under way has changed the value itself. Otherwise what stands there
  // now is undone only where it is one of `written`: somebody else may have put it there.
  bool isChanged = false;
  bool isGivenBack = false;  // only the disk does not have it yet
};

using Dota7Undos = std::map<Dota7Place, Dota7Undo, Dota7PlaceOrder>;

// Takes note that `next` is to be put where `now` stands at this moment. Returns the entry, and
// whether there is something new in it. Throws std::bad_alloc, and then `undos` can be used still.
std::pair<Dota7Undo*, bool> note(Dota7Undos& undos, const Dota7Place& place,
                                 const std::optional<platform::RegistryValue>& now,
                                 const platform::RegistryValue& next);

// Undoes the changes, brings that to the disk, and removes the entries of those that are undone, or
// that somebody else has changed since. Returns whether none is left. What memory runs out for
// stays.
bool giveBack(Dota7Undos& undos) noexcept;

// The changes as bytes: those of values that the pages edit. `registry` (registryIdentity) tells
// whose values they are.
[[nodiscard]] std::string serialize(const Dota7Undos& undos, std::string_view registry);

// The way back. Nothing where the bytes are damaged, tell of another registry, or of a value that
// the pages do not edit. None of the values has been changed by this run.
[[nodiscard]] std::optional<Dota7Undos> parseDota7Undos(std::string_view bytes,
                                                        std::string_view registry);

}  // namespace brennet
