#pragma once

#include <span>

namespace brennet {

// A branch of the tree of ready-made phrases. All texts are keys of the host's catalogue; some end
// in a space, and one occurs twice.
struct PhraseCategory {
  const char* key;
  std::span<const char* const> phrases;
};

// The branches in the order in which the tree shows them.
[[nodiscard]] std::span<const PhraseCategory> chatPhrases();

}  // namespace brennet
