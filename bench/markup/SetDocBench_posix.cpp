// Parsers that only the distribution has; see SetDocBench.cpp.

#include <expat.h>
#include <libxml/parser.h>

#include "bench/markup/Parser.h"

namespace brennet::bench {
namespace {

// The text is handed over in one piece and read where it stands; there is no tree.
void parseWithExpat(const SampleText& text) {
  XML_Parser parser = XML_ParserCreate("UTF-8");
  XML_SetElementHandler(
      parser, [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {});
  XML_SetCharacterDataHandler(parser, [](void*, const XML_Char*, int) {});
  require(XML_Parse(parser, text.utf8.data(), static_cast<int>(text.utf8.size()), 1) ==
          XML_STATUS_OK);
  XML_ParserFree(parser);
}

void parseWithLibxml2(const SampleText& text) {
  xmlDocPtr document = xmlReadMemory(text.utf8.data(), static_cast<int>(text.utf8.size()), nullptr,
                                     "UTF-8", XML_PARSE_HUGE);
  require(document != nullptr);
  xmlFreeDoc(document);
}

constexpr Parser kParsers[] = {
    {"expat", parseWithExpat},
    {"libxml2", parseWithLibxml2},
};

const bool registered = registerParsers(kParsers);

}  // namespace
}  // namespace brennet::bench
