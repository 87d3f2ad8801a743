#pragma once

#include "model/LoadReport.h"

class CNoticeStrip;
class QWidget;

namespace brennet {

// A strip that tells the player which keys of the settings file could not be used: the first few,
// and all of them in its tool tip. The setting group is named unless it is `currentScheme`. A child
// of `parent`; null if there is nothing to tell.
[[nodiscard]] CNoticeStrip* newDroppedKeysNotice(const LoadReport& report, int currentScheme,
                                                 QWidget* parent);

}  // namespace brennet
