// GB2312, the encoding of settings files, beside the system's converter of the same code page. Each
// side converts into memory that it allocates anew.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <pugixml.hpp>
#include <string>

#include "bench/markup/SampleTexts.h"
#include "bench/markup/text/SystemText.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/DoubleByteCodec.h"
#include "markup/text/TextDecoding.h"

namespace brennet::bench {
namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void decodeWithBrennet(const SampleText& text) {
  std::u16string units;
  units.reserve(text.gb2312.size());
  DoubleByteCodec::of(platform::kGb2312).decode(text.gb2312, units);
  require(units.size() == text.utf16.size());
}

void decodeWithSystem(const SampleText& text) {
  const std::size_t room = text.gb2312.size();
  const std::unique_ptr<char16_t[]> units(new char16_t[room]);
  require(decodeGb2312BySystem(text.gb2312, {units.get(), room}) == text.utf16.size());
}

void encodeWithBrennet(const SampleText& text) {
  std::string bytes;
  bytes.reserve(2 * text.utf16.size());
  require(!DoubleByteCodec::of(platform::kGb2312).encode(text.utf16, bytes));
  require(bytes.size() == text.gb2312.size());
}

void encodeWithSystem(const SampleText& text) {
  const std::size_t room = 2 * text.utf16.size();
  const std::unique_ptr<char[]> bytes(new char[room]);
  require(encodeGb2312BySystem(text.utf16, {bytes.get(), room}) == text.gb2312.size());
}

// From the bytes of a file to a document; finding out the encoding is a part of it.
void readWithBrennet(const SampleText& text) {
  ResultLog log;
  MarkupDocument document;
  require(document.setDoc(decodeText(text.gb2312, declaredEncodingOfBytes, log).text));
}

// Told the encoding. pugixml takes UTF-8 and parses it where it stands.
void readWithSystemAndPugixml(const SampleText& text) {
  // A byte pair of the code page becomes three bytes of UTF-8.
  const std::size_t room = text.gb2312.size() + text.gb2312.size() / 2;
  auto* bytes = static_cast<char*>(pugi::get_memory_allocation_function()(room));
  const std::size_t size = gb2312ToUtf8BySystem(text.gb2312, {bytes, room});
  require(size == text.utf8.size());
  pugi::xml_document document;
  require(document.load_buffer_inplace_own(bytes, size, pugi::parse_default, pugi::encoding_utf8));
}

struct Conversion {
  std::string name;  // <group>/<who>
  void (*convert)(const SampleText& text);
};

void registerAll(std::span<const Conversion> conversions, std::span<const SampleText> texts) {
  for (const SampleText& text : texts) {
    for (const Conversion& conversion : conversions) {
      const std::string name = conversion.name + "/" + text.name;
      benchmark::RegisterBenchmark(name.c_str(), [&text, convert = conversion.convert](
                                                     benchmark::State& state) {
        for (auto _ : state) convert(text);
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.gb2312.size()));
      });
    }
  }
}

const bool registered = [] {
  const std::string system = kSystemText;
  const Conversion conversions[] = {
      {"decodeGb2312/brennet", decodeWithBrennet},
      {"decodeGb2312/" + system, decodeWithSystem},
      {"encodeGb2312/brennet", encodeWithBrennet},
      {"encodeGb2312/" + system, encodeWithSystem},
  };
  const Conversion readers[] = {
      {"readGb2312/brennet", readWithBrennet},
      {"readGb2312/" + system + "+pugixml", readWithSystemAndPugixml},
  };
  registerAll(conversions, sampleChinese());
  registerAll(readers, sampleDocuments());
  return true;
}();

}  // namespace
}  // namespace brennet::bench
