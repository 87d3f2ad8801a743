// .reg files: exports of the registry editor, and such as are written by hand.

#include "fuzz/grammar/Grammar.h"
#include "fuzz/grammar/TextGrammar.h"

namespace brennet::fuzz {

const Grammar& regFileGrammar() {
  static const TextGrammar grammar(
      {
          {"document", {"{first line}{eol}{key*6}", "{first line}{eol}{value}{key*3}"}},
          {"first line",
           {"Windows Registry Editor Version 5.00", "Windows Registry Editor Version 5.00",
            "REGEDIT4", "REGEDIT4 ", "REGEDIT5"}},
          {"eol", {"\r\n", "\r\n", "\r\n", "\n", "\r"}},
          {"key", {"{eol?}{key line}{eol}{value*8}"}},
          {"key line",
           {"[{path}]", "[{path}]", "[-{path}]", "[{path}", "[{path}] ; {word}", " [{path}]x]"}},
          {"path",
           {"HKEY_CURRENT_USER\\Software\\Tollamere\\CONTROL",
            "HKEY_CURRENT_USER\\Software\\Tollamere\\PHRASES",
            "HKEY_CURRENT_USER\\Software\\Tollamere", "HKEY_CURRENT_USER\\software\\tollamere",
            "HKEY_CURRENT_USER", "HKCU\\Software", "HKEY_LOCAL_MACHINE\\a\\{word}",
            "HKEY_CURRENT_USER\\\\x", "{word}", ""}},
          {"value",
           {"{name}={data}{eol}", "{name}={data}{eol}", "{name}={data}{eol}",
            "  {name} = {data} ; {word}{eol}", "{name}=-{eol}", "{name}{eol}", "; {word}{eol}",
            "{eol}"}},
          {"name",
           {"\"ItemKeyC0\"", "\"ItemKeyCodeC0\"", "\"SLegacyKeys\"", "\"SQuickChatString0\"",
            "\"HMoveKeyQC\"", "\"HMoveKeyCodeQC\"", "\"HAC3KeyCode\"", "\"SOnStartString14\"",
            "\"HQuickChatHot0Key\"", "\"hquickchathot0keycode\"", "\"N\"", "\"n\"", "\"{word}\"",
            "@", "\"\"", "\"\\\\\\\"\"", "\"open"}},
          {"data",
           {"dword:00000067", "dword:{hex}{hex}{hex}{hex}", "dword:{hex}", "dword:123456789",
            "hex:{bytes}", "hex:{bytes}", "hex(2):{bytes}", "hex(7):{bytes}", "hex(b):{bytes}",
            "hex(ffffffff):{bytes}", "hex(100000000):{bytes}", "hex:41",
            "hex:43,54,52,4c,20,2b,20,41", "dword:00000041", "\"{word}\"", "\"a\\\\b\\\"c\"",
            "\"open", "hex:", "-"}},
          {"bytes",
           {"{hex}", "", "{hex},{bytes}", "{hex},{bytes}", "{hex},\\{eol}  {bytes}",
            "{hex},\\{eol}{value}", "{hex}\\{eol},{hex}", "{hex} , {hex}", "{hex},"}},
          {"hex", {"00", "4e", "FF", "7", "d0", "bb"}},
          {"word", {"NUMPAD7", "gg", "\xD0\xBB\xD0\xBB", "\xE8\xB0\xA2", "\xD0", "x y", ""}},
      },
      {.cutBefore = "",
       .cutBehind = "\n\r,=",
       .fragments = {"value", "key", "data", "bytes", "hex", "first line", "key line", "eol"},
       .wideOneIn = 2});
  return grammar;
}

}  // namespace brennet::fuzz
