#pragma once

#include <span>

namespace brennet {

// A branch of the tree of ready-made phrases. All texts are the keys that the host's catalogue is
// looked up by; some end in a space, and one stands twice.
struct PhraseCategory {
  const char* key;
  std::span<const char* const> phrases;
};

// The branches in the order in which the tree shows them.
[[nodiscard]] std::span<const PhraseCategory> chatPhrases();

}  // namespace brennet
