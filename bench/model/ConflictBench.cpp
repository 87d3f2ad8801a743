// Each question about keys, beside a linear scan of one array with the keys that it looks at.

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/model/AllocationCount.h"
#include "bench/model/SampleSettings.h"
#include "model/KeyConflicts.h"

namespace brennet::bench {

namespace {

// A key that nothing has: every question has to look at everything.
constexpr KeyWord kFreeKey('J', KeyWord::kCtrl);

std::vector<KeyWord> boundKeys(const HotkeyScheme& scheme) {
  std::vector<KeyWord> keys(scheme.HeroSkillKey.begin(), scheme.HeroSkillKey.end());
  keys.insert(keys.end(), scheme.ItemKey.begin(), scheme.ItemKey.end());
  keys.insert(keys.end(), scheme.SecretaryKey.begin(), scheme.SecretaryKey.end());
  for (const KeyRemap& remap : scheme.HotKey) keys.push_back(remap.Dest);
  keys.insert(keys.end(),
              {scheme.ComboKey.Key_D, scheme.ShowFBlood, scheme.ShowEBlood, scheme.HotkeyContrl,
               scheme.WinLockMouse, scheme.QuickChatKey, scheme.ChatWheelkey});
  return keys;
}

std::vector<KeyWord> pressedKeys(const HotkeyScheme& scheme) {
  std::vector<KeyWord> keys = boundKeys(scheme);
  keys.insert(keys.end(), scheme.MouseKey.begin(), scheme.MouseKey.end());
  return keys;
}

std::vector<KeyWord> presetKeys(const HotkeyScheme&) {
  return {kItemPresetKeys[0].begin(), kItemPresetKeys[0].end()};
}

std::vector<KeyWord> quickChatKeys(const HotkeyScheme&) {
  return {kQuickChatKeySets[0].begin(), kQuickChatKeySets[0].end()};
}

HotkeyScheme schemeWithPreset() {
  HotkeyScheme scheme = sampleConfig().scheme();
  scheme.NumComboKeyIndex = 0;
  return scheme;
}

template <bool (*Question)(const HotkeyScheme&, KeyWord)>
void ask(benchmark::State& state) {
  const HotkeyScheme scheme = schemeWithPreset();
  KeyWord key = kFreeKey;
  const std::size_t before = allocationCount();
  for (auto _ : state) {
    benchmark::DoNotOptimize(key);
    benchmark::DoNotOptimize(Question(scheme, key));
  }
  if (allocationCount() != before) state.SkipWithError("the question allocates");
}

bool isUsed(const HotkeyScheme& scheme, KeyWord key) {
  return isKeyUsed(scheme, key.virtualKey());
}

template <std::vector<KeyWord> (*Keys)(const HotkeyScheme&)>
void scan(benchmark::State& state) {
  const std::vector<KeyWord> keys = Keys(schemeWithPreset());
  KeyWord key = kFreeKey;
  for (auto _ : state) {
    benchmark::DoNotOptimize(key);
    bool found = false;
    for (const KeyWord other : keys) {
      if (other.sameKey(key)) {
        found = true;
        break;
      }
    }
    benchmark::DoNotOptimize(found);
  }
}

BENCHMARK(ask<isKeyFree>)->Name("conflict/brennet/isKeyFree");
BENCHMARK(scan<boundKeys>)->Name("conflict/array scan/isKeyFree");
BENCHMARK(ask<isItemPresetKey>)->Name("conflict/brennet/isItemPresetKey");
BENCHMARK(scan<presetKeys>)->Name("conflict/array scan/isItemPresetKey");
BENCHMARK(ask<isQuickChatKey>)->Name("conflict/brennet/isQuickChatKey");
BENCHMARK(scan<quickChatKeys>)->Name("conflict/array scan/isQuickChatKey");
BENCHMARK(ask<isUsed>)->Name("conflict/brennet/isKeyUsed");
BENCHMARK(scan<pressedKeys>)->Name("conflict/array scan/isKeyUsed");

}  // namespace
}  // namespace brennet::bench
