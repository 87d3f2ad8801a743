#include "tests/host/InUse.h"

#include <gtest/gtest.h>

#include <QPixmapCache>
#include <QThreadPool>

#include <algorithm>

namespace brennet::test {
namespace {

using Choose = const std::size_t& (*)(const std::size_t&, const std::size_t&);

InUse count() {
  QPixmapCache::clear();
  QThreadPool::globalInstance()->waitForDone();  // ends the threads of the pool
  return inUse();
}

// For each thing, the most or the least that is held after any of the rounds [from, to).
InUse countRounds(int from, int to, const std::function<void(int)>& round, Choose choose) {
  InUse chosen;
  for (int i = from; i < to; ++i) {
    round(i);
    const InUse now = count();
    if (i == from) chosen = now;
    for (const auto part :
         {&InUse::memory, &InUse::handles, &InUse::drawingObjects, &InUse::windowObjects}) {
      chosen.*part = choose(chosen.*part, now.*part);
    }
  }
  return chosen;
}

}  // namespace

void expectNothingIsLeft(int rounds, const std::function<void(int)>& round, std::size_t slack) {
  constexpr int kFirst = kRoundsBeforeCounting + kCountedRounds;
  const int last = rounds - kCountedRounds;
  ASSERT_GT(last, kFirst);
  for (int i = 0; i < kRoundsBeforeCounting; ++i) round(i);
  const InUse before = countRounds(kRoundsBeforeCounting, kFirst, round, std::max<std::size_t>);
  for (int i = kFirst; i < last; ++i) round(i);
  const InUse after = countRounds(last, rounds, round, std::min<std::size_t>);
  ASSERT_GT(before.memory, 0U);
  EXPECT_LE(after.memory, before.memory + kOnce + static_cast<std::size_t>(rounds) * slack);
  EXPECT_LE(after.handles, before.handles);
  EXPECT_LE(after.drawingObjects, before.drawingObjects);
  EXPECT_LE(after.windowObjects, before.windowObjects);
}

}  // namespace brennet::test
