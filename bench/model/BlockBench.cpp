// Filling a block, beside zeroing it and having the system convert its phrases.

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>

#include "bench/markup/text/SystemText.h"
#include "bench/model/AllocationCount.h"
#include "bench/model/SampleSettings.h"
#include "model/BlockFiller.h"

namespace brennet::bench {
namespace {

void fill(benchmark::State& state) {
  HotkeyConfig& config = sampleConfig();
  HotkeyBlock block;
  const std::size_t before = allocationCount();
  for (auto _ : state) {
    fillBlock(config, block);
    benchmark::DoNotOptimize(&block);
    benchmark::ClobberMemory();
  }
  if (allocationCount() != before) state.SkipWithError("filling a block allocates");
}
BENCHMARK(fill)->Name("fillBlock/brennet/sample");

char* appendPhrases(const Phrases& phrases, char* at, const char* end) {
  for (const auto& phrase : phrases) {
    if (phrase) {
      at += utf8BySystem({phrase->data(), phrase->size()}, {at, end});
    }
    *at++ = '\0';
  }
  return at;
}

void zeroAndConvert(benchmark::State& state) {
  const HotkeyScheme& scheme = sampleConfig().scheme();
  HotkeyBlock block;
  for (auto _ : state) {
    std::memset(&block, 0, sizeof(block));
    benchmark::ClobberMemory();
    appendPhrases(scheme.QuickChat, block.quickChat, block.quickChat + sizeof(block.quickChat));
    appendPhrases(scheme.ChatWheel, block.chatWheel, block.chatWheel + sizeof(block.chatWheel));
    benchmark::DoNotOptimize(&block);
    benchmark::ClobberMemory();
  }
}
const bool registered = [] {
  const std::string name = "fillBlock/zero+" + std::string(kSystemText) + "/sample";
  benchmark::RegisterBenchmark(name.c_str(), zeroAndConvert);
  return true;
}();

}  // namespace
}  // namespace brennet::bench
