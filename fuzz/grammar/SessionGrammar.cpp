// Scripts of a host's calls; fuzz/host/SessionScript.h says what the lines mean.

#include "fuzz/grammar/FileRules.h"
#include "fuzz/grammar/Grammar.h"

namespace brennet::fuzz {
namespace {

std::vector<Rule> sessionRules() {
  return {
      {"document",
       {"{settings}load 0\n{step*12}", "{settings}{preferences}load 0\n{step*12}", "{step*6}",
        "{preferences}{step*8}"}},
      {"settings", {"settings {settings file}\n"}},
      {"preferences", {"preferences {preference file}\n"}},
      {"step",
       {"{call}", "{call}", "{call}", "{fault}{call}", "{fault}{call}", "{settings}",
        "{preferences}"}},
      {"call",
       {"load 0\n", "load {place}\n", "load\n", "fill 1807\n", "fill {size} {memory}\n",
        "apply 1807 own {number}{change}{change*4}\n", "apply {size} {memory} {number}{change*4}\n",
        "enable {bit} {number}\n", "enable 1 {number}\nenable 0 {number}\n", "read\n",
        "dialog {bit}\n", "apply 1807 own {number}{change}\nload 0\n"}},
      {"fault", {"memory {count}\n", "memory {count} on\n", "room {size}\n", "memory {count}\n"}},
      {"count", {"0", "1", "2", "3", "5", "8", "13", "21", "34", "60", "100", "200", "400"}},
      {"place", {"0", "1", "2", "3", "4", "5", "6", "7"}},
      {"size",
       {"1807", "1807", "0", "1", "3", "4", "5", "8", "9", "100", "112", "1150", "1806", "1808",
        "4000", "65536", "4294967295"}},
      {"memory", {"own", "odd", "edge", "null", "fixed", "short"}},
      {"change",
       {" {offset} {record key}", " {offset} {record key}", " {offset} {hex}",
        " {phrase offset} {hex}{hex}{hex*9}"}},
      {"offset", {"4",    "7",    "8",    "10",   "12",   "20",   "22",   "32",   "34",
                  "36",   "38",   "40",   "42",   "44",   "64",   "66",   "68",   "69",
                  "80",   "82",   "86",   "88",   "1136", "1138", "1142", "1144", "1146",
                  "1148", "1790", "1792", "1800", "1802", "1803", "1804", "1805", "1806"}},
      {"phrase offset", {"112", "113", "115", "240", "1130", "1150", "1152", "1780"}},
      // As in the record: modifiers, then the virtual key.
      {"record key",
       {"0051", "0451", "0151", "0851", "0431", "0470", "00FF", "000D", "0010", "0014", "0000",
        "0057"}},
      {"hex", {"00", "01", "41", "FF", "80", "E8B0A2", "F09F9880", "D0BB", "2000", "00000000"}},
  };
}

}  // namespace

const Grammar& sessionGrammar() {
  static const TextGrammar grammar = [] {
    std::vector<Rule> rules = settingsRules("");
    for (Rule& rule : preferencesRules("|")) rules.push_back(std::move(rule));
    for (Rule& rule : sessionRules()) rules.push_back(std::move(rule));
    return TextGrammar(rules, {.cutBefore = "",
                               .cutBehind = "\n",
                               .fragments = {"step", "call", "fault", "call", "settings"}});
  }();
  return grammar;
}

}  // namespace brennet::fuzz
