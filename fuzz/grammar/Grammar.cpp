#include "fuzz/grammar/Grammar.h"

#include <algorithm>

namespace brennet::fuzz {
namespace {

std::string withBytesChanged(std::string input, std::size_t most, ByteMutator mutateBytes) {
  const std::size_t size = std::min(input.size(), most);
  input.resize(most);
  input.resize(mutateBytes(reinterpret_cast<std::uint8_t*>(input.data()), size, most));
  return input;
}

}  // namespace

std::string mutated(const Grammar& grammar, std::string_view input, std::size_t most,
                    Choices& choices, ByteMutator mutateBytes) {
  constexpr std::size_t kMostChanges = 4;
  std::string next(input);
  const std::size_t way = choices.below(8);
  if (way == 0 || input.empty()) {
    next = grammar.document(choices);
  } else if (way <= 5) {
    for (std::size_t n = 1 + choices.below(kMostChanges); n > 0; --n) {
      next = grammar.changed(next, choices);
    }
  }
  if (way >= 5) next = withBytesChanged(std::move(next), most, mutateBytes);
  if (next.size() > most) next.resize(most);
  return next;
}

}  // namespace brennet::fuzz
