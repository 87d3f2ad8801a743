// The game's preference file.

#include "fuzz/grammar/FileRules.h"
#include "fuzz/grammar/Grammar.h"

namespace brennet::fuzz {

std::vector<Rule> preferencesRules(std::string_view lineEnd) {
  using namespace std::string_view_literals;
  return {
      {"line end", {lineEnd}},
      {"preference file", {"{section*9}", "{line}{section*4}", "{gameplay}{section*4}"}},
      {"section", {"{header}{line end}{line*6}{line end}", "{gameplay}", "{hotkeys}"}},
      {"gameplay",
       {"[Gameplay]{line end}{line?}customkeys={value}{line end}{line*3}{line end}",
        "[Gameplay]{line end}customkeys=2{line end}customkeys=1{line end}"}},
      {"hotkeys",
       {"{hotkey header}{line end}HeroOnly=0{line end}Hotkey={value}{line end}"
        "MetaKeyState=0{line end}QuickCast=1{line end}{line end}"}},
      {"hotkey header",
       {"[Commandbar Hotkeys 20]", "[Inventory Hotkeys 3]", "[Sound [Commandbar Hotkeys 1]",
        "[Commandbar Hotkeys ", "[inventory hotkeys 0]"}},
      {"header",
       {"[Sound]", "[Gameplay]", "[Gameplay] ", "[Gameplay]x]", "[", "[]", "[ [Input]",
        "{hotkey header}"}},
      {"line",
       {"{name}={value}{line end}", "{name}={value}{line end}", "customkeys{line end}",
        "{name} = {value}={value}{line end}", "; {name}{line end}", "={line end}", "{line end}",
        "{odd end}"}},
      {"name", {"ambient", "customkeys", "musicvolume", "\xB1\xB3\xBE\xB0", "", "Hotkey"}},
      {"value", {"0", "1", "2", "", "127", "C:\\Games\\", "[Gameplay]", "\xD2\xF4\xC0\xD6"}},
      {"odd end",
       {"x=1\r", "x=1\n", "x=1\r\r\n", "\n", "x=1\x1A"sv, "\0"sv, "x\0=1\r\n"sv, "\n\r"}},
  };
}

const Grammar& preferencesGrammar() {
  static const TextGrammar grammar = [] {
    std::vector<Rule> rules = preferencesRules("\r\n");
    rules.push_back({"document", {"{preference file}"}});
    return TextGrammar(rules, {.cutBefore = "",
                               .cutBehind = "\n",
                               .fragments = {"line", "line", "header", "section", "gameplay",
                                             "hotkeys", "odd end"}});
  }();
  return grammar;
}

}  // namespace brennet::fuzz
