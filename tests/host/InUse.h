#pragma once

#include <cstddef>
#include <functional>

namespace brennet::test {

// What the process holds at one moment.
struct InUse {
  std::size_t memory = 0;  // bytes that were allocated and not freed
  std::size_t handles = 0;
  // These are 0 outside Windows.
  std::size_t drawingObjects = 0;
  std::size_t windowObjects = 0;
};

// What the system counts.
[[nodiscard]] InUse inUse();

constexpr int kRoundsBeforeCounting = 10;
constexpr int kCountedRounds = 10;

// The bytes that may be taken once, but late, however many rounds there are: on Windows a table of
// Qt's grows by 180 bytes after the first twenty rounds, in 200 rounds and in 400.
constexpr std::size_t kOnce = 256;

// Calls `round` with the numbers of that many rounds, and expects that nothing of them is left: no
// more is held after the last rounds than after the first.
//
// After kRoundsBeforeCounting rounds nothing is used for the first time any more, such as a font.
// From then on, what is held goes up and down by some 10 KB, because caches of Qt and of the font
// library are fuller after one round than after another. So kCountedRounds rounds are counted at
// the beginning and as many at the end, and the least of the end must be no more than the most of
// the beginning. It may be less: others may give back meanwhile what they took before.
//
// What Qt keeps for half a minute and then gives back is not counted, so that the speed of the
// machine does not matter: the pictures in its cache, and the waiting threads of its pool, each
// with a handle that wakes it.
//
// `slack` is what each round may leave behind, in bytes.
void expectNothingIsLeft(int rounds, const std::function<void(int)>& round, std::size_t slack = 0);

}  // namespace brennet::test
