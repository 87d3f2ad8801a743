// Parsing a document in memory. Every parser is given the text in the form that it works on (ours
// and Qt's in UTF-16, the others in UTF-8) and makes its own copy of it, which is measured too.

#include <benchmark/benchmark.h>
#include <expat.h>
#include <libxml/parser.h>
#include <tinyxml2.h>

#include <QXmlStreamReader>
#include <cstdlib>
#include <memory>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>
#include <vector>

#include "bench/markup/SampleTexts.h"
#include "markup/MarkupDocument.h"

namespace brennet::bench {
namespace {

void require(bool parsed) {
  if (!parsed) std::abort();
}

void parseWithBrennet(const SampleText& text) {
  MarkupDocument document;
  require(document.setDoc(text.utf16));
}

void parseWithPugixml(const SampleText& text) {
  pugi::xml_document document;
  require(document.load_buffer(text.utf8.data(), text.utf8.size(), pugi::parse_default,
                               pugi::encoding_utf8));
}

// Without character references, line ends and attribute white space: what setDoc leaves alone too.
void parseWithMinimalPugixml(const SampleText& text) {
  pugi::xml_document document;
  require(document.load_buffer(text.utf8.data(), text.utf8.size(), pugi::parse_minimal,
                               pugi::encoding_utf8));
}

void parseWithRapidXml(const SampleText& text) {
  std::vector<char> copy(text.utf8.begin(), text.utf8.end());
  copy.push_back('\0');
  const auto document = std::make_unique<rapidxml::xml_document<>>();
  document->parse<rapidxml::parse_default>(copy.data());
  require(document->first_node() != nullptr);
}

void parseWithTinyXml2(const SampleText& text) {
  tinyxml2::XMLDocument document;
  require(document.Parse(text.utf8.data(), text.utf8.size()) == tinyxml2::XML_SUCCESS);
}

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

void parseWithQt(const SampleText& text) {
  QXmlStreamReader reader(
      QString::fromUtf16(text.utf16.data(), static_cast<int>(text.utf16.size())));
  while (!reader.atEnd()) reader.readNext();
  require(!reader.hasError());
}

struct Parser {
  const char* name;
  void (*parse)(const SampleText& text);
};

constexpr Parser kParsers[] = {
    {"brennet", parseWithBrennet},
    {"pugixml", parseWithPugixml},
    {"pugixml-minimal", parseWithMinimalPugixml},
    {"rapidxml", parseWithRapidXml},
    {"tinyxml2", parseWithTinyXml2},
    {"expat", parseWithExpat},
    {"libxml2", parseWithLibxml2},
    {"qxmlstreamreader", parseWithQt},
};

const bool registered = [] {
  for (const SampleText& text : sampleDocuments()) {
    for (const Parser& parser : kParsers) {
      const std::string name = std::string("setDoc/") + parser.name + "/" + text.name;
      benchmark::RegisterBenchmark(name.c_str(), [&text, &parser](benchmark::State& state) {
        for (auto _ : state) parser.parse(text);
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.utf8.size()));
      });
    }
  }
  return true;
}();

}  // namespace
}  // namespace brennet::bench
