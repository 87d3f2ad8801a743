// Text files in all encodings, as they are declared or otherwise, behind the number of bytes that
// are to be converted at a time.

#include "fuzz/grammar/Grammar.h"
#include "fuzz/grammar/TextGrammar.h"

namespace brennet::fuzz {
namespace {

std::vector<Rule> textFileRules() {
  using namespace std::string_view_literals;
  return {
      {"document",
       {"{block size}{declaration}{text*12}", "{block size}{declaration}{text*3}{tag}{text*3}",
        "{block size}{declaration}{four bytes*5}{text*3}", "{block size}{mark}{text*12}",
        "{block size}{declaration}{utf 8*9}", "{block size}{mark}{declaration}{text*4}",
        "{block size}{text*12}", "{block size}{units*9}"}},
      {"block size", {"\0"sv, "\x01", "\x03", "\x10", "\xFF"}},
      {"mark",
       {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF", "\xFF\xFE\0\0"sv, "\0\0\xFE\xFF"sv,
        "\x84\x31\x95\x33"}},
      {"declaration",
       {"<?xml version=\"1.0\" encoding=\"{name}\"?>", "<?xml encoding='{name}'?>",
        "<?xml version=\"1.0\"?>", "<!-- --><?xml encoding=\"{name}\"?>",
        "<html><head><meta http-equiv=\"Content-Type\" content=\"text/html; charset={name}\">",
        "<HTML><HEAD><META HTTP-EQUIV=content-type CONTENT='charset={name}'>"}},
      {"name",
       {"gb2312",       "gb2312",      "GB18030", "gb18030",  "gbk",    "big5",     "shift_jis",
        "euc-kr",       "utf-8",       "utf-16",  "utf-16be", "utf-32", "utf-32be", "us-ascii",
        "windows-1252", "iso-2022-jp", "unknown", "",         "cp936",  "utf-7"}},
      {"text",
       {"{tag}",
        "{four bytes}",
        "\xD0\xBB",
        "\xC4\xE3\xBA\xC3",
        "\xD0\xBB\xD0\xBB",
        "\xA1\x40",
        "\xFE\x50",
        "\x81\x7F",
        "\x80",
        "\xFF",
        "\xD0",
        "\xE8\xB0\xA2",
        "\xE8\xB0",
        "\xF0\x9F\x98\x80",
        "\xF4\x90\x80\x80",
        "\xC0\xAF",
        "\xED\xA0\x80",
        "\0"sv,
        "\r\n",
        "a longer text of more than sixteen bytes",
        "\x1B$B%F\x1B(B"}},
      {"four bytes",
       {"\x81\x30\x81\x30", "\x90\x30\x81\x30", "\xE3\x32\x9A\x35", "\xE3\x32\x9A\x36",
        "\x84\x31\xA4\x37", "\x81\x30\x81", "\x81\x30", "\x81\x39\xFE\x39"}},
      // Much of it reads as pairs of other encodings too.
      {"utf 8",
       {"\xE8\xB0\xA2", "\xE3\x82\xBF", "\xC2\xA9", "\xD0\xBB", "\xC3\xA9\xC3\xA9", "\xE2\x82\xAC",
        "\xF0\x9F\x98\x80", "\xE7\x80\x80", "0", "a"}},
      {"tag", {"<a>", "</a>", "<b x='1'/>", "&lt;"}},
      // UTF-16 without a mark, and UTF-32.
      {"units",
       {"<\0a\0>\0"sv, "\0<\0a\0>"sv, "\x22\x8C"sv, "\x3D\xD8\0\xDE"sv, "\0\xD8"sv, "\0\0\0a"sv,
        "a\0\0\0"sv, "?\0x\0m\0l\0"sv, "\0"sv}},
  };
}

}  // namespace

const Grammar& textFileGrammar() {
  static const TextGrammar grammar(
      textFileRules(), {.cutBefore = "<\x81\xD0",
                        .cutBehind = ">",
                        .fragments = {"text", "utf 8", "four bytes", "mark", "declaration", "name",
                                      "units", "tag"}});
  return grammar;
}

}  // namespace brennet::fuzz
