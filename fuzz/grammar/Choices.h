#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>

namespace brennet::fuzz {

// What is left to chance, from a seed: the same choices for the same seed, on every system.
class Choices {
 public:
  explicit Choices(std::uint32_t seed) : random_(seed) {}

  // A number from 0 to `count` - 1; 0 where `count` is 0.
  std::size_t below(std::size_t count) { return count == 0 ? 0 : random_() % count; }

  // True once in `count` times.
  bool oneIn(std::size_t count) { return below(count) == 0; }

  // One of `values`, which must not be empty.
  template <class Value>
  const Value& pick(std::span<const Value> values) {
    return values[below(values.size())];
  }
  template <class Value, std::size_t kCount>
  const Value& pick(const Value (&values)[kCount]) {
    return values[below(kCount)];
  }

 private:
  std::mt19937 random_;
};

}  // namespace brennet::fuzz
