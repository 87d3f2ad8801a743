#pragma once

#include <QString>
#include <QStringList>

#include "model/LoadReport.h"

namespace brennet {

// The category of Qt's debug output that a load writes to.
inline constexpr char kLoadCategory[] = "brennet.load";

// A line of plain English for each dropped key, for whoever maintains a settings file: where it is,
// what it was for and why it was dropped.
[[nodiscard]] QStringList inWords(const LoadReport& report);

// Writes those lines to Qt's debug output. Throws std::bad_alloc; some lines may have been written
// by then.
void trace(const LoadReport& report);

}  // namespace brennet
