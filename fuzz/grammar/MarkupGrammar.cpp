// Markup texts in UTF-8, well-formed and with all that can be wrong with them; and such texts
// behind the edits that are to be made to them.

#include "fuzz/grammar/Grammar.h"
#include "fuzz/grammar/TextGrammar.h"

namespace brennet::fuzz {
namespace {

// Elements and what they are made of.
std::vector<Rule> elementRules() {
  using namespace std::string_view_literals;
  return {
      {"text to parse",
       {"{prolog?}{element}{tail?}", "{prolog?}{element}{space}", "{prolog*2}{node*12}"}},
      {"prolog",
       {"<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n", "{document type}", "{comment}"}},
      {"tail", {"{space}", "{node}", "{text}", "{open token}"}},
      {"element",
       {"<a/>", "<a{attribute*3}>{node*6}</a{space?}>", "<b{attribute?}>{node*5}</b>",
        "<ab{attribute*2}{space?}/>", "<\xE4\xB8\xAD>{node*3}</\xE4\xB8\xAD>"}},
      {"node",
       {"{text}", "{element}", "{element}", "{element}", "{text}", "{comment}", "{section}",
        "<?p {text}?>", "{start tag}", "{end tag}", "{odd token}", "{reference}"}},
      {"start tag", {"<a>", "<b{attribute*2}>", "<ab>", "<a{attribute*2}/>"}},
      {"end tag", {"</a>", "</b>", "</ab{space}>", "</>", "</ a>", "</A>", "</a x='>'>"}},
      {"attribute",
       {"{space}{name}={quoted}", "{space}{name}={quoted}",
        "{space}{name}{space?}={space?}{quoted}", "{space}{name}={name}", "{space}{name}",
        "{space}{name}={space}", "{name}={quoted}", "{space}={name}", "{space}{quoted}", "{space}/",
        "{space}{name}={name}{quoted}", "{space}<{name}", "{space}{name}=/{name}",
        "{space}{name}=&amp;"}},
      {"name", {"a", "b", "id", "x", "ab", "a.b-c", "1", "_", "\xE6\x96\x87"}},
      {"quoted",
       {"\"1\"", "'{text}'", "\"{text}\"", "\"{reference}\"", "'>'", "\"/>\"", "''", "\"<b>\""}},
      {"text",
       {"", "t", " ", "1 2\r\n", "]]>", "-->", "\xE8\xB0\xA2", "\xC4\xBC\xC4\xBE", "{reference}",
        "{text}{text}", "a=b", "/", "\0"sv, "?>", "'", "\"",
        "0123456789012345678901234567890123456789012345678901234567890123456789"}},
      {"space", {" ", "\r\n", "\t", "  ", "\n"}},
  };
}

// References, and tokens other than elements, whole and broken.
std::vector<Rule> tokenRules() {
  return {
      {"reference",
       {"&lt;",
        "&amp;",
        "&gt;&quot;&apos;",
        "&nbsp;",
        "&Auml;&auml;",
        "&thetasym;",
        "&bogus;",
        "&",
        "&lt",
        "&;",
        "&#65;",
        "&#x4E2D;",
        "&#xD800;",
        "&#0;",
        "&#x10FFFF;",
        "&#1114112;",
        "&#;",
        "&#x;",
        "&#00065;",
        "&#4294967361;",
        "&#xg;",
        "&&amp;",
        "&amp{text};"}},
      {"comment", {"<!-- {text} -->", "<!---->", "<!--{element}-->", "<!-- -- -->", "<!--->-->"}},
      {"section", {"<![CDATA[{text}]]>", "<![CDATA[{element}]]]>", "<![CDATA[]]>"}},
      {"document type",
       {"<!DOCTYPE a>", "<!DOCTYPE a PUBLIC '>' \">\">",
        "<!DOCTYPE a [<!ENTITY b '{text}'> {comment} <?p ]?>]>", "<!doctype a>"}},
      {"odd token",
       {"<", "<1/>", "<!x>", "<!-x>", "<![x>", "<!D>", "<!DOC>", "<!DOCTYPE ]>", "<!DOCTYPE a",
        "<!>", "<?>", "</a <b>", "<a <b>", "<a b=\"<c>\"", "< a>", "<<a/>", "<![CDATA[>",
        "<!DOCTYPE a [>", "{open token}"}},
      {"open token",
       {"<", "</", "</a", "<a", "<a b=\"", "<!--", "<!-- -", "<![CDATA[", "<![CDATA[ ]]", "<?p",
        "<!DOCTYPE a [", "<!DOCTYPE a '", "<!", "<!x", "<![", "<!-"}},
  };
}

std::vector<Rule> markupRules() {
  std::vector<Rule> rules = elementRules();
  for (Rule& rule : tokenRules()) rules.push_back(std::move(rule));
  return rules;
}

// As the target setDoc reads them: how many edits there are, and a byte for each.
std::vector<Rule> editRules() {
  using namespace std::string_view_literals;
  return {
      {"edits",
       {"\0"sv, "\x02{move}{edit}", "\x04{move}{edit}{move}{edit}",
        "\x08{move}{edit}{edit}{move}{edit}{edit}{move}{edit}",
        "\x0F{move}{move}{edit}{move}{edit}{move}{move}{edit}{edit}{move}{edit}{edit}{edit}{move}"
        "{edit}"}},
      // To the next element, to a child, into, out.
      {"move", {"\x04", "\x04", "\x05", "\x06", "\x06", "\x07"}},
      // An attribute, content, an element, a child; then names and values in higher bits.
      {"edit", {"\x20", "\x41", "\x02", "\x03", "\x28", "\x50", "\x78", "\x61", "\xC1", "\x22",
                "\xE2", "\x4A", "\x23", "\xC3", "\x63", "\x5B", "\x51", "\x31", "\x49", "\xB1"}},
  };
}

TextGrammar::Format markupFormat() {
  return {.cutBefore = "<&",
          .cutBehind = ">;",
          .fragments = {"node", "element", "attribute", "odd token", "open token", "reference",
                        "end tag", "start tag", "quoted"}};
}

}  // namespace

const Grammar& markupGrammar() {
  static const TextGrammar grammar = [] {
    std::vector<Rule> rules = markupRules();
    rules.push_back({"document", {"{text to parse}"}});
    return TextGrammar(rules, markupFormat());
  }();
  return grammar;
}

const Grammar& editsGrammar() {
  static const TextGrammar grammar = [] {
    std::vector<Rule> rules = markupRules();
    for (Rule& rule : editRules()) rules.push_back(std::move(rule));
    rules.push_back({"document", {"{edits}{text to parse}"}});
    return TextGrammar(rules, markupFormat());
  }();
  return grammar;
}

}  // namespace brennet::fuzz
