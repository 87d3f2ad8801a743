#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <memory>

#include "gameside/dota7/Dota7Step.h"
#include "gameside/dota7/Dota7Values.h"
#include "model/HotkeyConfig.h"

namespace brennet {

// The settings at one moment. Moments share the schemes that are equal.
struct ConfigMoment {
  bool enable = false;
  std::uint32_t index = 0;
  std::array<std::shared_ptr<const HotkeyScheme>, HotkeyConfig::kSchemes> schemes;
};

// One step of the player in the dialog: all that one press or click has changed, in the settings
// and in the registry.
struct EditStep {
  ConfigMoment before, after;
  Dota7Step dota7;  // empty: it changed nothing there
  Dota7Cast castBefore = Dota7Cast::Normal;
  Dota7Cast castAfter = Dota7Cast::Normal;
  QString title;  // what it is called, if it is more than its changes: "Clear settings"

  [[nodiscard]] bool isDota7() const { return !dota7.empty(); }
};

}  // namespace brennet
