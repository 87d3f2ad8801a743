#pragma once

namespace brennet::test {

// The exit status of a player who was killed as planned.
inline constexpr int kPlayerKilled = 9;

// The number of steps that he takes at most.
inline constexpr int kPlayerSteps = 5;

}  // namespace brennet::test
