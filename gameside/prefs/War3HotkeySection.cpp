#include "gameside/prefs/War3HotkeySection.h"

namespace brennet {
namespace {

const char* switchText(bool on) {
  return on ? "1" : "0";
}

}  // namespace

std::string sectionName(const War3HotkeySection& section) {
  switch (section.kind) {
    case War3HotkeySection::kCommandCard:
      return "Commandbar Hotkeys " + std::to_string(section.first) + std::to_string(section.second);
    case War3HotkeySection::kInventory:
      // Wide enough for any pair of numbers, so that nonsense positions cannot overflow.
      return "Inventory Hotkeys " +
             std::to_string(std::int64_t{section.second} + std::int64_t{2} * section.first);
    default:
      return {};
  }
}

std::string sectionText(const War3HotkeySection& section) {
  std::string text;
  text.append("[").append(sectionName(section)).append("]\n");
  text.append("HeroOnly=").append(switchText(section.heroOnly)).append("\n");
  text.append("Hotkey=").append(std::to_string(section.hotkey)).append("\n");
  text.append("MetaKeyState=").append(std::to_string(section.metaKeyState)).append("\n");
  text.append("QuickCast=").append(switchText(section.quickCast)).append("\n");
  text.append("\n");
  return text;
}

}  // namespace brennet
