#pragma once

#include <string>
#include <variant>
#include <vector>

#include "model/HotkeyScheme.h"
#include "model/LoadReport.h"
#include "model/SchemeDifferences.h"

namespace brennet {

// One value that a scheme would get with those of another, or that it would be refused.
struct TransferRow {
  // Why the other scheme's value cannot be taken over; nothing if it can. Then the value is that of
  // SchemeTransfer::result all the same.
  using Refusal = std::variant<std::monostate, DroppedKey, DroppedChoice>;

  SettingPart part;
  Refusal refusal;

  [[nodiscard]] bool isRefused() const { return !std::holds_alternative<std::monostate>(refusal); }
  friend bool operator==(const TransferRow&, const TransferRow&) = default;
};

// What it would mean for a scheme to take over all of another one. Nothing is changed by asking.
struct SchemeTransfer {
  HotkeyScheme result;            // the scheme afterwards; assign it to carry the transfer out
  std::vector<TransferRow> rows;  // what would change or is refused, in the order of the settings
};

// For a scheme that has been loaded, with what its load had to drop. Throws std::bad_alloc.
[[nodiscard]] SchemeTransfer transferOf(const HotkeyScheme& current, const HotkeyScheme& loaded,
                                        const LoadReport& report);

// For a scheme in memory. Hosts may have put any keys there: `source` goes through the checks of a
// load, so that of two equal keys one comes over. Throws std::bad_alloc.
[[nodiscard]] SchemeTransfer transferOf(const HotkeyScheme& current, const HotkeyScheme& source);

}  // namespace brennet
