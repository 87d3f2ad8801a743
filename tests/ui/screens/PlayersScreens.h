#pragma once

#include <vector>

#include "tests/ui/screens/TestScreens.h"

class QWidget;

namespace brennet::test {

struct ScreenRow {
  const char* name;  // may be part of a file name
  ScreenShape shape;
};

// The screens that players have.
[[nodiscard]] const std::vector<ScreenRow>& playersScreens();

// Whether the page of a window has a scroll bar; the window has to be shown.
[[nodiscard]] bool isScrolled(const QWidget& window);

// Handles the events by which nested layouts tell each other their sizes: only then scroll bars
// come.
void settleLayouts();

}  // namespace brennet::test
