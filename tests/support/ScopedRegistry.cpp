#include "tests/support/ScopedRegistry.h"

#include <chrono>
#include <thread>

namespace brennet::test {

bool ScopedRegistry::becomes(const platform::RegFile& content) const {
  constexpr auto kStep = std::chrono::milliseconds(20);
  constexpr auto kPatience = std::chrono::minutes(1);
  for (auto waited = kStep; waited < kPatience; waited += kStep) {
    if (this->content() == content) return true;
    std::this_thread::sleep_for(kStep);
  }
  return this->content() == content;
}

}  // namespace brennet::test
