// Settings files: as the component writes them, older ones, and such as players edit. The settings
// are those of the table.

#include <deque>
#include <string>
#include <variant>

#include "fuzz/grammar/FileRules.h"
#include "fuzz/grammar/Grammar.h"
#include "model/SettingTable.h"

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

// The rules of one setting. The rule that bears the name of its element writes it whole.
class RulesOf {
 public:
  explicit RulesOf(std::string_view element) : element_(element) {}

  std::vector<Rule> operator()(const SwitchSetting&) const { return holding("{bit}"); }
  std::vector<Rule> operator()(const ByteSetting&) const { return holding("{number}"); }
  std::vector<Rule> operator()(const KeySetting&) const { return holding("{key code}"); }
  std::vector<Rule> operator()(const KeyListSetting& row) const {
    const std::string_view id = kept("id of ", element_);
    const std::string_view key = kept("key of ", element_);
    std::vector<std::string_view> ids;
    for (const std::uint16_t number : row.ids) ids.push_back(kept(std::to_string(number), ""));
    ids.emplace_back("{number}");
    std::vector<Rule> rules = holding(kept("{eol}{", key, "*13}"));
    rules.push_back({key, {kept("<Key id=\"{", id, "}\"{mark?}>{key code}</Key>{eol}")}});
    rules.push_back({id, ids});
    return rules;
  }
  std::vector<Rule> operator()(const RemapSetting&) const { return holding("{eol}{remap*7}"); }
  std::vector<Rule> operator()(const ComboSetting&) const { return holding("{combination}"); }
  std::vector<Rule> operator()(const PresetSetting&) const { return holding("{preset number}"); }
  std::vector<Rule> operator()(const QuickChatSetSetting&) const { return holding("{bit}"); }
  std::vector<Rule> operator()(const PhraseSetting&) const { return holding("{eol}{chat*9}"); }

  // Texts that live as long as the grammars, which only refer to them.
  template <class... Parts>
  static std::string_view kept(const Parts&... parts) {
    static std::deque<std::string> texts;
    std::string& text = texts.emplace_back();
    (text.append(parts), ...);
    return text;
  }

 private:
  [[nodiscard]] std::vector<Rule> holding(std::string_view content) const {
    return {{element_, {kept("<", element_, ">", content, "</", element_, ">{eol}")}}};
  }

  std::string_view element_;
};

// A scheme: its settings in any order, or in the order in which they are written. Those with more
// than a number to them come more often.
std::vector<Rule> schemeRules() {
  std::vector<Rule> rules;
  std::string inOrder;
  std::vector<std::string_view> anyOrder;
  for (const Setting& row : kSettings) {
    const std::string_view element =
        RulesOf::kept(std::string(row.element.begin(), row.element.end()));
    const auto ofRow = std::visit(RulesOf(element), row.kind);
    rules.insert(rules.end(), ofRow.begin(), ofRow.end());
    inOrder += "{" + std::string(element) + "?}";
    const bool isNumber = std::holds_alternative<SwitchSetting>(row.kind) ||
                          std::holds_alternative<ByteSetting>(row.kind);
    anyOrder.insert(anyOrder.end(), isNumber ? 1 : 3, RulesOf::kept("{", element, "}"));
  }
  anyOrder.emplace_back("{markup}");
  rules.push_back({"scheme", {"{setting*9}", "{setting*40}", RulesOf::kept(inOrder)}});
  rules.push_back({"setting", anyOrder});
  return rules;
}

// The entries of settings.
std::vector<Rule> entryRules() {
  return {
      {"key",
       {"<Key id=\"{id}\"{mark?}>{key code}</Key>{eol}",
        "<Key id=\"{id}\"{mark?}>{key code}</Key>{eol}", "<Key {mark?} id='{number}'/>"}},
      {"mark", {" autocast=\"{bit}\"", " autocast=\"{number}\""}},
      {"id", {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "{number}"}},
      {"remap",
       {"<Key id=\"{id}\"><Src>{key code}</Src><Dest>{key code}</Dest></Key>{eol}",
        "<Key id=\"{id}\">{key code}<Dest>{key code}</Dest></Key>"}},
      {"combination",
       {"<Key_A>{key code}</Key_A><Key_B>{key code}</Key_B><Key_C>{key code}</Key_C>"
        "<Key_D>{key code}</Key_D>",
        "<Key_B>{key code}</Key_B><Key_D>{key code}</Key_D>"}},
      {"preset number", {"-1", "0", "1", "2", "{number}"}},
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
                .fragments = {"setting", "key", "chat", "remap", "scheme 0", "scheme 1", "number",
                              "key code", "phrase", "markup", "time", "declaration"},
                .wideOneIn = 12});
  }();
  return grammar;
}

}  // namespace brennet::fuzz
