#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>

#include <ostream>

#include "ui/window/StyleSheet.h"

namespace brennet::test {

// Whose colours the windows have.
struct Colors {
  const char* name;
  bool areSystems;
  QRgb text = 0, window = 0, stress = 0, chosenText = 0,
       disabled = 0;  // of the system, if it is high contrast
};

inline constexpr Colors kColors[] = {
    {"Skin", false},
    {"WhiteOnBlack", true, 0xFFFFFFFF, 0xFF000000, 0xFF1AEBFF, 0xFF000000, 0xFF3FF23F},
    {"BlackOnWhite", true, 0xFF000000, 0xFFFFFFFF, 0xFF37006E, 0xFFFFFFFF, 0xFF600000},
};

inline void PrintTo(const Colors& colors, std::ostream* out) {
  *out << colors.name;
}

// As long as it lives, new windows have these colours.
class ScopedColors {
 public:
  explicit ScopedColors(const Colors& colors) : before_(QApplication::palette()) {
    setSystemColors(colors.areSystems);
    if (!colors.areSystems) return;
    QPalette system;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      system.setColor(role, colors.text);
      system.setColor(QPalette::Disabled, role, colors.disabled);
    }
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
      system.setColor(role, colors.window);
    }
    system.setColor(QPalette::Highlight, colors.stress);
    system.setColor(QPalette::HighlightedText, colors.chosenText);
    QApplication::setPalette(system);
  }
  ~ScopedColors() {
    QApplication::setPalette(before_);
    setSystemColors({});
  }
  ScopedColors(const ScopedColors&) = delete;
  ScopedColors& operator=(const ScopedColors&) = delete;

 private:
  QPalette before_;
};

}  // namespace brennet::test
