// Filling a block, beside zeroing it and converting its phrases with ICU.

#include <benchmark/benchmark.h>
#include <unicode/ustring.h>

#include <cstring>

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
      int32_t length = 0;
      UErrorCode error = U_ZERO_ERROR;
      u_strToUTF8(at, static_cast<int32_t>(end - at), &length, phrase->data(),
                  static_cast<int32_t>(phrase->size()), &error);
      at += length;
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
BENCHMARK(zeroAndConvert)->Name("fillBlock/zero+ICU/sample");

}  // namespace
}  // namespace brennet::bench
