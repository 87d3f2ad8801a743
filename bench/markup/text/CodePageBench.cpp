// GB2312, the encoding of settings files, beside ICU's converter of the same code page. Each side
// converts into memory that it allocates anew.

#include <benchmark/benchmark.h>
#include <unicode/ucnv.h>

#include <cstdlib>
#include <memory>
#include <pugixml.hpp>
#include <string>

#include "bench/markup/SampleTexts.h"
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

UConverter* openConverter(const char* name) {
  UErrorCode error = U_ZERO_ERROR;
  UConverter* converter = ucnv_open(name, &error);
  require(U_SUCCESS(error) != 0);
  return converter;
}

// Open as long as the program runs, as our codec is.
UConverter* gb2312() {
  static UConverter* const converter = openConverter("windows-936-2000");
  return converter;
}

UConverter* utf8() {
  static UConverter* const converter = openConverter("UTF-8");
  return converter;
}

void decodeWithBrennet(const SampleText& text) {
  std::u16string units;
  units.reserve(text.gb2312.size());
  DoubleByteCodec::of(platform::kGb2312).decode(text.gb2312, units);
  require(units.size() == text.utf16.size());
}

void decodeWithIcu(const SampleText& text) {
  const std::size_t room = text.gb2312.size();
  const std::unique_ptr<char16_t[]> units(new char16_t[room]);
  const char* source = text.gb2312.data();
  char16_t* target = units.get();
  UErrorCode error = U_ZERO_ERROR;
  ucnv_toUnicode(gb2312(), &target, target + room, &source, source + text.gb2312.size(), nullptr, 1,
                 &error);
  require(static_cast<std::size_t>(target - units.get()) == text.utf16.size());
}

void encodeWithBrennet(const SampleText& text) {
  std::string bytes;
  bytes.reserve(2 * text.utf16.size());
  require(!DoubleByteCodec::of(platform::kGb2312).encode(text.utf16, bytes));
  require(bytes.size() == text.gb2312.size());
}

void encodeWithIcu(const SampleText& text) {
  const std::size_t room = 2 * text.utf16.size();
  const std::unique_ptr<char[]> bytes(new char[room]);
  const char16_t* source = text.utf16.data();
  char* target = bytes.get();
  UErrorCode error = U_ZERO_ERROR;
  ucnv_fromUnicode(gb2312(), &target, target + room, &source, source + text.utf16.size(), nullptr,
                   1, &error);
  require(static_cast<std::size_t>(target - bytes.get()) == text.gb2312.size());
}

// From the bytes of a file to a document; finding out the encoding is a part of it.
void readWithBrennet(const SampleText& text) {
  ResultLog log;
  MarkupDocument document;
  require(document.setDoc(decodeText(text.gb2312, declaredEncodingOfBytes, log).text));
}

// Told the encoding. pugixml takes UTF-8 and parses it where it stands.
void readWithIcuAndPugixml(const SampleText& text) {
  // A byte pair of the code page becomes three bytes of UTF-8.
  const std::size_t room = text.gb2312.size() + text.gb2312.size() / 2;
  auto* bytes = static_cast<char*>(pugi::get_memory_allocation_function()(room));
  const char* source = text.gb2312.data();
  char* target = bytes;
  UErrorCode error = U_ZERO_ERROR;
  ucnv_convertEx(utf8(), gb2312(), &target, bytes + room, &source, source + text.gb2312.size(),
                 nullptr, nullptr, nullptr, nullptr, 1, 1, &error);
  const auto size = static_cast<std::size_t>(target - bytes);
  require(size == text.utf8.size());
  pugi::xml_document document;
  require(document.load_buffer_inplace_own(bytes, size, pugi::parse_default, pugi::encoding_utf8));
}

struct Conversion {
  const char* name;  // <group>/<who>
  void (*convert)(const SampleText& text);
};

void registerAll(std::span<const Conversion> conversions, std::span<const SampleText> texts) {
  for (const SampleText& text : texts) {
    for (const Conversion& conversion : conversions) {
      const std::string name = std::string(conversion.name) + "/" + text.name;
      benchmark::RegisterBenchmark(name.c_str(), [&text, convert = conversion.convert](
                                                     benchmark::State& state) {
        for (auto _ : state) convert(text);
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.gb2312.size()));
      });
    }
  }
}

constexpr Conversion kConversions[] = {
    {"decodeGb2312/brennet", decodeWithBrennet},
    {"decodeGb2312/icu", decodeWithIcu},
    {"encodeGb2312/brennet", encodeWithBrennet},
    {"encodeGb2312/icu", encodeWithIcu},
};

constexpr Conversion kReaders[] = {
    {"readGb2312/brennet", readWithBrennet},
    {"readGb2312/icu+pugixml", readWithIcuAndPugixml},
};

const bool registered = [] {
  registerAll(kConversions, sampleChinese());
  registerAll(kReaders, sampleDocuments());
  return true;
}();

}  // namespace
}  // namespace brennet::bench
