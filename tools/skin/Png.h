#pragma once

#include <string>

#include "tools/skin/Canvas.h"

namespace brennet::skin {

// The picture as a PNG file, the same bytes on every machine.
[[nodiscard]] std::string encodePng(const Canvas& canvas);

}  // namespace brennet::skin
