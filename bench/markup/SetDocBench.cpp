// Parsing a document in memory. Every parser is given the text in the form that it works on (ours
// and Qt's in UTF-16, the others in UTF-8) and makes its own copy of it, which is measured too.

#include <benchmark/benchmark.h>
#include <tinyxml2.h>

#include <QXmlStreamReader>
#include <memory>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>
#include <vector>

#include "bench/markup/Parser.h"
#include "markup/MarkupDocument.h"

namespace brennet::bench {
namespace {

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

void parseWithQt(const SampleText& text) {
  QXmlStreamReader reader(
      QString::fromUtf16(text.utf16.data(), static_cast<int>(text.utf16.size())));
  while (!reader.atEnd()) reader.readNext();
  require(!reader.hasError());
}

constexpr Parser kParsers[] = {
    {"brennet", parseWithBrennet},
    {"pugixml", parseWithPugixml},
    {"pugixml-minimal", parseWithMinimalPugixml},
    {"rapidxml", parseWithRapidXml},
    {"tinyxml2", parseWithTinyXml2},
    {"qxmlstreamreader", parseWithQt},
};

const bool registered = registerParsers(kParsers);

}  // namespace
}  // namespace brennet::bench
