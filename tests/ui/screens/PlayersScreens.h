#pragma once

#include <vector>

#include "tests/ui/screens/TestScreens.h"

class QWidget;

namespace brennet::test {

struct ScreenRow {
  const char* name;  // fit for the name of a file
  ScreenShape shape;
};

// The screens that players have.
[[nodiscard]] const std::vector<ScreenRow>& playersScreens();

// Whether the page of a window that is shown has a scroll bar.
[[nodiscard]] bool isScrolled(const QWidget& window);

// Scroll bars come when layouts inside each other have told each other of their sizes: handles what
// they have to say.
void settleLayouts();

}  // namespace brennet::test
