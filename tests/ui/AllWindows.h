#pragma once

#include <QWidget>

#include <memory>
#include <span>

#include "model/HotkeyConfig.h"

namespace brennet {
class Dota7KeyInfoManager;
}

namespace brennet::test {

// A window or page with a form of its own.
struct WindowRow {
  const char* form;  // the name of its form, ui/.../NAME.ui
  std::unique_ptr<QWidget> (*make)(HotkeyConfig&, Dota7KeyInfoManager&, QWidget* parent);
  bool isPage = true;        // false for the dialog itself
  bool isMadeAtOnce = true;  // false for what the dialog makes when the player opens it
};

// All of them. What has to hold for every window is tested for each row: its look with all fonts
// and sizes, its texts in all languages.
[[nodiscard]] std::span<const WindowRow> allWindows();

}  // namespace brennet::test
