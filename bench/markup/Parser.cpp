#include "bench/markup/Parser.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

namespace brennet::bench {

bool registerParsers(std::span<const Parser> parsers) {
  for (const SampleText& text : sampleDocuments()) {
    for (const Parser& parser : parsers) {
      const std::string name = std::string("setDoc/") + parser.name + "/" + text.name;
      benchmark::RegisterBenchmark(name.c_str(), [&text, &parser](benchmark::State& state) {
        for (auto _ : state) parser.parse(text);
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.utf8.size()));
      });
    }
  }
  return true;
}

void require(bool parsed) {
  if (!parsed) std::abort();
}

}  // namespace brennet::bench
