#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Registry.h"

// What is needed to undo the changes of one run of the dialog.
namespace brennet {

// Where a value is: the path of a key, the name of the value.
using Dota7Place = std::pair<std::u16string, std::u16string>;

// By the registry's own rule: names that differ only in case are one place.
struct Dota7PlaceOrder {
  bool operator()(const Dota7Place& a, const Dota7Place& b) const;
};

struct Dota7Undo {
  std::optional<platform::RegistryValue> old;    // the old value; nothing: there was none
  std::vector<platform::RegistryValue> written;  // all that was to be written since, each once
  // Whether the current run has changed the value itself. Otherwise the present value is undone
  // only if it is one of `written`: somebody else may have put it there.
  bool isChanged = false;
  bool isGivenBack = false;  // only the disk does not have it yet
};

using Dota7Undos = std::map<Dota7Place, Dota7Undo, Dota7PlaceOrder>;

// Notes that `next` is to replace `now`, the present value; nothing: there is or will be no value.
// Returns the entry, and whether it has something new. Throws std::bad_alloc; `undos` can still be
// used then.
std::pair<Dota7Undo*, bool> note(Dota7Undos& undos, const Dota7Place& place,
                                 const std::optional<platform::RegistryValue>& now,
                                 const std::optional<platform::RegistryValue>& next);

// Undoes the changes, brings that to the disk, and removes the entries of values that are restored,
// or that somebody else has changed since. Returns whether none is left. If memory runs out, the
// rest stays.
bool giveBack(Dota7Undos& undos) noexcept;

// The changes as bytes: those of values that the pages edit. `registry` (registryIdentity) says
// whose values they are.
[[nodiscard]] std::string serialize(const Dota7Undos& undos, std::string_view registry);

// The reverse. Nothing if the bytes are damaged, or name another registry or a value that the pages
// do not edit. None of the values counts as changed by this run.
[[nodiscard]] std::optional<Dota7Undos> parseDota7Undos(std::string_view bytes,
                                                        std::string_view registry);

}  // namespace brennet
