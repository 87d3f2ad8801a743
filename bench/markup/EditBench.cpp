// How the time of building, saving and reading a document grows with its elements.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextEncoding.h"

namespace brennet::bench {
namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void build(MarkupDocument& document, std::int64_t elements) {
  document.setDoc(u"<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n");
  require(document.addElem(u"KeyInfo"));
  for (std::int64_t i = 0; i < elements; ++i) {
    require(document.addElem(u"Key", {}, MarkupDocument::kChild));
    require(document.setChildAttrib(u"id", u"103"));
    require(document.setChildAttrib(u"autocast", u"0"));
    require(document.setChildData(u"65280"));
  }
}

// Building it and turning it into the bytes of a file.
void scaleBuildAndSave(benchmark::State& state) {
  for (auto _ : state) {
    MarkupDocument document;
    build(document, state.range(0));
    ResultLog log;
    benchmark::DoNotOptimize(encodeText(document.doc(), u"gb2312", log));
  }
}

void scaleRead(benchmark::State& state) {
  MarkupDocument document;
  build(document, state.range(0));
  for (auto _ : state) {
    document.resetMainPos();
    std::int64_t found = 0;
    for (; document.findChildElem(u"Key"); ++found) {
      benchmark::DoNotOptimize(document.getChildAttrib(u"id"));
      benchmark::DoNotOptimize(document.getChildAttrib(u"autocast"));
      benchmark::DoNotOptimize(document.getChildData());
    }
    require(found == state.range(0));
  }
}

constexpr std::int64_t kFewest = 1 << 10;
constexpr std::int64_t kMost = 1 << 17;

BENCHMARK(scaleBuildAndSave)->Name("scale/buildAndSave")->RangeMultiplier(2)->Range(kFewest, kMost);
BENCHMARK(scaleRead)->Name("scale/read")->RangeMultiplier(2)->Range(kFewest, kMost);

}  // namespace
}  // namespace brennet::bench
