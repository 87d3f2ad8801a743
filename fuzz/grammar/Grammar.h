#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/grammar/Choices.h"

namespace brennet::fuzz {

// What the inputs of a fuzz target look like. A grammar knows one format well enough to make whole
// inputs of its own and to change others piece by piece, so that what is behind the first check of
// a parser is reached too. It need not understand an input to change it.
class Grammar {
 public:
  Grammar() = default;
  virtual ~Grammar() = default;
  Grammar(const Grammar&) = delete;
  Grammar& operator=(const Grammar&) = delete;

  // A whole input.
  [[nodiscard]] virtual std::string document(Choices& choices) const = 0;

  // `input` with one piece removed, repeated, moved, replaced or added.
  [[nodiscard]] virtual std::string changed(std::string_view input, Choices& choices) const = 0;

  // An input with pieces of both.
  [[nodiscard]] virtual std::string crossed(std::string_view left, std::string_view right,
                                            Choices& choices) const = 0;
};

// A mutator that knows nothing of the format, such as LLVMFuzzerMutate: changes the `size` bytes at
// `data` in place, to at most `most` bytes, and returns how many there are then.
using ByteMutator = std::size_t (*)(std::uint8_t* data, std::size_t size, std::size_t most);

// The next input after `input`, of at most `most` bytes: a new one from the grammar, some changes
// of pieces, changed bytes, or both of these.
[[nodiscard]] std::string mutated(const Grammar& grammar, std::string_view input, std::size_t most,
                                  Choices& choices, ByteMutator mutateBytes);

// The grammars of the formats that come from outside. They live as long as the program.
[[nodiscard]] const Grammar& settingsGrammar();     // settings files
[[nodiscard]] const Grammar& preferencesGrammar();  // the game's preference file
[[nodiscard]] const Grammar& regFileGrammar();      // .reg files
[[nodiscard]] const Grammar& recordGrammar();       // a scheme number, and records
[[nodiscard]] const Grammar& markupGrammar();       // markup texts with all that can be wrong
[[nodiscard]] const Grammar& editsGrammar();        // edits, and such a text behind them
[[nodiscard]] const Grammar& textFileGrammar();     // a block size, and a file in any encoding
[[nodiscard]] const Grammar& sessionGrammar();      // scripts of a host's calls (fuzz/host)

}  // namespace brennet::fuzz
