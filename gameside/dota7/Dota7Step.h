#pragma once

#include <map>
#include <optional>

#include "gameside/dota7/Dota7Undo.h"
#include "platform/Registry.h"

namespace brennet {

// What one value of the registry held before and after a step; nothing: there was no such value.
struct Dota7Edit {
  std::optional<platform::RegistryValue> before;
  std::optional<platform::RegistryValue> after;

  friend bool operator==(const Dota7Edit&, const Dota7Edit&) = default;
};

// The values that the player changed in one step, for example those of one key and its text.
using Dota7Step = std::map<Dota7Place, Dota7Edit, Dota7PlaceOrder>;

}  // namespace brennet
