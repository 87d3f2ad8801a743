#pragma once

#include <cstddef>
#include <functional>

namespace brennet::test {

// What the process holds at a moment.
struct InUse {
  std::size_t memory = 0;  // bytes that were allocated and not freed
  std::size_t handles = 0;
  // None outside Windows.
  std::size_t drawingObjects = 0;
  std::size_t windowObjects = 0;
};

// What the system counts.
[[nodiscard]] InUse inUse();

constexpr int kRoundsBeforeCounting = 10;
constexpr int kCountedRounds = 10;

// What may be taken once and late, in bytes, however many rounds there are: on Windows a table of
// Qt's grows by 180 bytes after the first twenty rounds, in 200 rounds and in 400.
constexpr std::size_t kOnce = 256;

// Does `round` so often, with its number, and expects that nothing of it is left: that no more is
// held after the last rounds than after the first.
//
// After kRoundsBeforeCounting rounds nothing is met for the first time any more, such as fonts. How
// much is held then goes up and down by some 10 KB, because caches of Qt and of the font library
// are fuller after one round than after another. So kCountedRounds rounds are counted at the
// beginning and as many at the end, and it is the least of the end that must be no more than the
// most of the beginning. It may be less: what somebody else took before can be given back
// meanwhile.
//
// What Qt keeps for a while and gives back half a minute later counts for nothing, so that it does
// not matter how fast the machine is: the pictures of its cache, and the waiting threads of its
// pool, each with a handle that wakes it.
//
// `slack` is what each round may leave behind, in bytes.
void expectNothingIsLeft(int rounds, const std::function<void(int)>& round, std::size_t slack = 0);

}  // namespace brennet::test
