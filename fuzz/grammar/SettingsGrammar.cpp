// Settings files: as the component writes them, older ones, and such as players edit.

#include "fuzz/grammar/FileRules.h"
#include "fuzz/grammar/Grammar.h"

namespace brennet::fuzz {
namespace {

// The file, and what holds the schemes.
std::vector<Rule> fileRules() {
  return {
      {"settings file",
       {"{declaration}{root}", "{declaration}{root}", "{declaration}{root}", "{root}",
        "{declaration}<!--{phrase}-->{root}{markup?}", "{declaration}{older root}"}},
      {"declaration",
       {"<?xml version=\"1.0\" encoding=\"gb2312\"?>{eol}",
        "<?xml version=\"1.0\" encoding=\"gb2312\"?>{eol}",
        "<?xml version='1.0' encoding='{encoding}'?>{eol}", "<?xml version=\"1.0\"?>"}},
      {"encoding", {"gb2312", "utf-8", "GB18030", "big5", "unknown", "utf-16", ""}},
      {"root",
       {"<KeyInfo enable=\"{bit}\" index=\"{index}\">{eol}{time}{eol}{scheme 0?}{scheme 1?}"
        "{scheme 2?}</KeyInfo>{eol}",
        "<KeyInfo enable=\"{number}\" index=\"{number}\">{scheme 2}{time}{scheme 0}{scheme 0?}"
        "</KeyInfo>"}},
      {"older root", {"<KeyInfo enable=\"1\">{time}{scheme}</KeyInfo>"}},
      {"time",
       {"<LastSaveTime>{number}</LastSaveTime>", "<LastSaveTime>1404738022</LastSaveTime>",
        "<LastSaveTime/>"}},
      {"scheme 0", {"<KeyInfo_0>{eol}{scheme}</KeyInfo_0>{eol}"}},
      {"scheme 1", {"<KeyInfo_1>{eol}{scheme}</KeyInfo_1>{eol}"}},
      {"scheme 2", {"<KeyInfo_2>{eol}{scheme}</KeyInfo_2>{eol}"}},
  };
}

// A scheme, and its settings.
std::vector<Rule> schemeRules() {
  return {
      {"scheme",
       {"{setting*9}", "{setting*40}",
        "{zoom?}{skills?}{items?}{mouse?}{ledger?}{switch*9}{remaps?}{combo?}{combo 3?}{preset?}"
        "{single key*9}{chat keys?}{single key*3}{phrases?}{wheel?}{switch*5}"}},
      {"setting",
       {"{zoom}", "{skills}", "{items}", "{mouse}", "{ledger}", "{switch}", "{switch}", "{remaps}",
        "{combo}", "{combo 3}", "{preset}", "{single key}", "{single key}", "{chat keys}",
        "{phrases}", "{wheel}", "{markup}"}},
      {"zoom", {"<ZoomValue>{number}</ZoomValue>{eol}"}},
      {"skills", {"<HeroSkillKey>{eol}{key*13}</HeroSkillKey>{eol}"}},
      {"items", {"<ItemKey>{eol}{item*8}</ItemKey>{eol}"}},
      {"mouse", {"<MouseKey>{eol}{key*4}</MouseKey>{eol}"}},
      {"ledger", {"<SecretaryKey>{eol}{key*4}</SecretaryKey>{eol}"}},
  };
}

// The entries of settings.
std::vector<Rule> entryRules() {
  return {
      {"key",
       {"<Key id=\"{id}\"{mark?}>{key code}</Key>{eol}",
        "<Key id=\"{id}\"{mark?}>{key code}</Key>{eol}", "<Key {mark?} id='{number}'/>"}},
      {"item", {"<Key id=\"{slot}\"{mark?}>{key code}</Key>{eol}"}},
      {"mark", {" autocast=\"{bit}\"", " autocast=\"{number}\""}},
      {"id", {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "{number}"}},
      {"slot", {"103", "104", "100", "101", "97", "98", "{number}"}},
      {"switch",
       {"<DisableLWinFlag>{bit}</DisableLWinFlag>{eol}",
        "<LockMouseFlag>{bit}</LockMouseFlag>{eol}", "<ShowFBloodFlag>{bit}</ShowFBloodFlag>{eol}",
        "<ShowEBloodFlag>{bit}</ShowEBloodFlag>{eol}", "<ShowFManaFlag>{bit}</ShowFManaFlag>{eol}",
        "<ViewNoDragFlag>{bit}</ViewNoDragFlag>{eol}", "<StartJSQFlag>{number}</StartJSQFlag>{eol}",
        "<HideUI>{bit}</HideUI>{eol}", "<SkillHeroOnly>{bit}</SkillHeroOnly>{eol}",
        "<CombokeyHeroOnly>{bit}</CombokeyHeroOnly>{eol}",
        "<DisableLeftAlt>{bit}</DisableLeftAlt>{eol}",
        "<DisableLeftAltShowHP>{bit}</DisableLeftAltShowHP>{eol}"}},
      {"remaps", {"<HotKey>{eol}{remap*7}</HotKey>{eol}"}},
      {"remap",
       {"<Key id=\"{id}\"><Src>{key code}</Src><Dest>{key code}</Dest></Key>{eol}",
        "<Key id=\"{id}\">{key code}<Dest>{key code}</Dest></Key>"}},
      {"combo", {"<ComboKey>{combination}</ComboKey>{eol}"}},
      {"combo 3", {"<ComboKey3to1>{combination}</ComboKey3to1>{eol}"}},
      {"combination",
       {"<Key_A>{key code}</Key_A><Key_B>{key code}</Key_B><Key_C>{key code}</Key_C>"
        "<Key_D>{key code}</Key_D>",
        "<Key_B>{key code}</Key_B><Key_D>{key code}</Key_D>"}},
      {"preset", {"<NumComboKeyIndex>{preset number}</NumComboKeyIndex>{eol}"}},
      {"preset number", {"-1", "0", "1", "2", "{number}"}},
      {"single key",
       {"<ShowFBlood>{key code}</ShowFBlood>{eol}", "<ShowEBlood>{key code}</ShowEBlood>{eol}",
        "<HotkeyContrl>{key code}</HotkeyContrl>{eol}",
        "<WinLockMouse>{key code}</WinLockMouse>{eol}",
        "<QuickChatKey>{key code}</QuickChatKey>{eol}",
        "<ChatWheelkey>{key code}</ChatWheelkey>{eol}"}},
      {"chat keys", {"<QuickChatIndex>{bit}</QuickChatIndex>{eol}"}},
      {"phrases", {"<QuickChat>{eol}{chat*9}</QuickChat>{eol}"}},
      {"wheel", {"<ChatWheel>{eol}{chat*9}</ChatWheel>{eol}"}},
      {"chat", {"<Chat id=\"{id}\">{phrase}</Chat>{eol}", "<Chat id=\"{id}\"/>{eol}"}},
  };
}

// Numbers, keys and texts.
std::vector<Rule> valueRules() {
  return {
      // Few keys, so that many are refused: Q, Alt+Q, Shift+Q, Alt+1, Alt+F1, Enter, Shift and Caps
      // Lock by themselves, no key.
      {"key code",
       {"65280", "20736", "20740", "20737", "12548", "28676", "3328", "4096", "5120", "22272",
        "17664", "17664", "{number}", ""}},
      {"number",
       {"0", "1", "2", "-1", "10", "255", "256", "65535", "2147483648", "-2147483649", " +7", "1x",
        "99999999999999999999"}},
      {"bit", {"1", "0", "1", "0", "{number}"}},
      {"index", {"0", "1", "2", "3", "10", "11", "{number}"}},
      {"phrase", {"", "gg", "{word} {word}", "{word*60}", "{reference}", "<![CDATA[{word}]]>"}},
      // In GB2312, in UTF-8, in neither, and half a character.
      {"word",
       {"hello", "\xD0\xBB\xD0\xBB", "\xC4\xE3\xBA\xC3", "\xE8\xB0\xA2\xE8\xB0\xA2",
        "\xF0\x9F\x98\x80", "\xFF\xFE\x80", "\xD0", " ", "0123456789"}},
      {"reference", {"&lt;b&gt;", "&amp;&apos;&quot;", "&#35874;", "&#x1F600;", "&nbsp;", "&#0;"}},
      {"markup",
       {"<Other/>", "<!-- {phrase} -->", "</KeyInfo_0>", "<KeyInfo_0>", "<Key", "<HotKey/>", "<",
        "{phrase}", "<?p?>", "<KeyInfo/>"}},
  };
}

}  // namespace

std::vector<Rule> settingsRules(std::string_view lineEnd) {
  std::vector<Rule> rules{{"eol", {lineEnd}}};
  for (const auto& part : {fileRules(), schemeRules(), entryRules(), valueRules()}) {
    rules.insert(rules.end(), part.begin(), part.end());
  }
  return rules;
}

const Grammar& settingsGrammar() {
  static const TextGrammar grammar = [] {
    std::vector<Rule> rules = settingsRules("\r\n");
    rules.push_back({"document", {"{settings file}"}});
    return TextGrammar(
        rules, {.cutBefore = "<",
                .cutBehind = ">",
                .fragments = {"setting", "key", "item", "chat", "remap", "scheme 0", "scheme 1",
                              "number", "key code", "phrase", "markup", "time", "declaration"},
                .wideOneIn = 12});
  }();
  return grammar;
}

}  // namespace brennet::fuzz
