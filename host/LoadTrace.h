#pragma once

#include <QString>
#include <QStringList>

#include "model/LoadReport.h"

namespace brennet {

// The category of Qt's debug output under which a load tells of itself.
inline constexpr char kLoadCategory[] = "brennet.load";

// Each dropped key in a line of plain English, for whoever looks after a settings file: where it
// stands, what it was for and why it was dropped.
[[nodiscard]] QStringList inWords(const LoadReport& report);

// Writes those lines to Qt's debug output. Throws std::bad_alloc; some lines may be out then.
void trace(const LoadReport& report);

}  // namespace brennet
