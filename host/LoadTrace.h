#pragma once

#include "model/LoadReport.h"

namespace brennet {

// The category of Qt's debug output that a load writes to.
inline constexpr char kLoadCategory[] = "brennet.load";

// Writes a line of plain English for each dropped key to Qt's debug output. Throws std::bad_alloc;
// some lines may have been written by then.
void trace(const LoadReport& report);

}  // namespace brennet
