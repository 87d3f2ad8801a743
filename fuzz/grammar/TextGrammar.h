#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/grammar/Grammar.h"

namespace brennet::fuzz {

// What a rule can be written as. `{rule}` stands for another rule, `{rule?}` for that or nothing,
// `{rule*9}` for nothing up to nine times. The first alternative is the plainest: it is taken where
// rules call each other too deeply. What is to come often is listed more than once.
struct Rule {
  std::string_view name;
  std::vector<std::string_view> alternatives;
};

// A format of lines or tags, given by rules.
class TextGrammar final : public Grammar {
 public:
  struct Format {
    std::string_view cutBefore;               // a piece begins with one of these characters
    std::string_view cutBehind;               // and behind one of these
    std::vector<std::string_view> fragments;  // rules for pieces to be put in
    std::size_t wideOneIn = 0;                // one in so many is in UTF-16; 0: none
  };

  // The rule called "document" makes whole inputs. Where rules have the same name, the last counts.
  // The texts must live as long as the grammar.
  TextGrammar(const std::vector<Rule>& rules, Format format);

  [[nodiscard]] std::string document(Choices& choices) const override;
  [[nodiscard]] std::string changed(std::string_view input, Choices& choices) const override;
  [[nodiscard]] std::string crossed(std::string_view left, std::string_view right,
                                    Choices& choices) const override;

  // The pieces of `input`, in their order, none of them empty. In UTF-16 with a byte-order mark
  // they are cut between units, and the mark belongs to the first.
  [[nodiscard]] std::vector<std::string_view> piecesOf(std::string_view input) const;

 private:
  void expand(std::string_view rule, int depth, Choices& choices, std::string& out) const;
  void expandReference(std::string_view reference, int depth, Choices& choices,
                       std::string& out) const;
  [[nodiscard]] std::string fragment(bool isWide, Choices& choices) const;

  std::map<std::string_view, std::vector<std::string_view>> rules_;
  Format format_;
};

}  // namespace brennet::fuzz
