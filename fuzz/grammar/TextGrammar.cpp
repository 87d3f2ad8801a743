#include "fuzz/grammar/TextGrammar.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace brennet::fuzz {
namespace {

constexpr int kDeepest = 12;
constexpr std::size_t kLongest = 32768;
constexpr std::string_view kWideMark = "\xFF\xFE";

using Pieces = std::vector<std::string_view>;

bool isWide(std::string_view text) {
  return text.starts_with(kWideMark);
}

// Each byte as a unit of UTF-16.
std::string widened(std::string_view text) {
  std::string wide;
  for (const char byte : text) wide.append(1, byte).append(1, '\0');
  return wide;
}

std::string joined(const Pieces& pieces) {
  std::string text;
  for (const std::string_view piece : pieces) text += piece;
  return text;
}

// Some pieces in a row, mostly few.
struct Run {
  std::ptrdiff_t begin;
  std::ptrdiff_t end;
};

Run someRun(const Pieces& pieces, Choices& choices) {
  const std::size_t begin = choices.below(pieces.size());
  const std::size_t most = pieces.size() - begin;
  const std::size_t length =
      1 + choices.below(choices.oneIn(4) ? most : std::min<std::size_t>(3, most));
  return {static_cast<std::ptrdiff_t>(begin), static_cast<std::ptrdiff_t>(begin + length)};
}

// Any place between two pieces, and both ends.
Pieces::iterator somePlace(Pieces& pieces, Choices& choices) {
  return pieces.begin() + static_cast<std::ptrdiff_t>(choices.below(pieces.size() + 1));
}

}  // namespace

TextGrammar::TextGrammar(const std::vector<Rule>& rules, Format format)
    : format_(std::move(format)) {
  for (const Rule& rule : rules) rules_[rule.name] = rule.alternatives;
}

std::string TextGrammar::document(Choices& choices) const {
  std::string text;
  expand("document", 0, choices, text);
  const bool wide = format_.wideOneIn != 0 && choices.oneIn(format_.wideOneIn);
  return wide ? std::string(kWideMark) + widened(text) : text;
}

void TextGrammar::expand(std::string_view rule, int depth, Choices& choices,
                         std::string& out) const {
  if (out.size() > kLongest) return;
  const std::vector<std::string_view>& alternatives = rules_.at(rule);
  std::string_view text = alternatives[depth < kDeepest ? choices.below(alternatives.size()) : 0];
  for (;;) {
    const std::size_t open = text.find('{');
    out += text.substr(0, open);
    if (open == std::string_view::npos) return;
    const std::size_t close = text.find('}', open);
    expandReference(text.substr(open + 1, close - open - 1), depth + 1, choices, out);
    text.remove_prefix(close + 1);
  }
}

void TextGrammar::expandReference(std::string_view reference, int depth, Choices& choices,
                                  std::string& out) const {
  std::size_t times = 1;
  const std::size_t star = reference.find('*');
  if (star != std::string_view::npos) {
    const std::string_view most = reference.substr(star + 1);
    std::from_chars(most.data(), most.data() + most.size(), times);
    times = choices.below(times + 1);
    reference = reference.substr(0, star);
  } else if (reference.ends_with('?')) {
    times = choices.below(2);
    reference.remove_suffix(1);
  }
  for (; times > 0; --times) expand(reference, depth, choices, out);
}

std::string TextGrammar::fragment(bool isWide, Choices& choices) const {
  std::string text;
  expand(format_.fragments[choices.below(format_.fragments.size())], 0, choices, text);
  return isWide ? widened(text) : text;
}

std::vector<std::string_view> TextGrammar::piecesOf(std::string_view input) const {
  const std::size_t unit = isWide(input) ? 2 : 1;
  const auto isOneOf = [&](std::string_view characters, std::size_t at) {
    return characters.find(input[at]) != std::string_view::npos &&
           (unit == 1 || (at + 1 < input.size() && input[at + 1] == '\0'));
  };
  Pieces pieces;
  std::size_t start = 0;
  for (std::size_t at = unit == 1 ? 0 : kWideMark.size(); at < input.size(); at += unit) {
    if (at > start && (isOneOf(format_.cutBefore, at) || isOneOf(format_.cutBehind, at - unit))) {
      pieces.push_back(input.substr(start, at - start));
      start = at;
    }
  }
  if (start < input.size()) pieces.push_back(input.substr(start));
  return pieces;
}

std::string TextGrammar::changed(std::string_view input, Choices& choices) const {
  Pieces pieces = piecesOf(input);
  if (pieces.empty()) return document(choices);
  const std::string added = fragment(isWide(input), choices);
  const Run run = someRun(pieces, choices);
  const auto begin = pieces.begin() + run.begin;
  const auto end = pieces.begin() + run.end;
  switch (choices.below(6)) {
    case 0:
      pieces.erase(begin, end);
      break;
    case 1: {
      const Pieces repeated(begin, end);
      pieces.insert(somePlace(pieces, choices), repeated.begin(), repeated.end());
      break;
    }
    case 2: {
      const Pieces moved(begin, end);
      pieces.erase(begin, end);
      pieces.insert(somePlace(pieces, choices), moved.begin(), moved.end());
      break;
    }
    case 3:
      pieces.insert(pieces.erase(begin, end), added);
      break;
    default:
      pieces.insert(somePlace(pieces, choices), added);
  }
  return joined(pieces);
}

std::string TextGrammar::crossed(std::string_view left, std::string_view right,
                                 Choices& choices) const {
  Pieces pieces = piecesOf(left);
  const Pieces others = piecesOf(right);
  if (pieces.empty() || others.empty()) return std::string(pieces.empty() ? right : left);
  const Run taken = someRun(others, choices);
  if (choices.oneIn(2)) {
    // The beginning of one and the end of the other.
    pieces.erase(somePlace(pieces, choices), pieces.end());
    pieces.insert(pieces.end(), others.begin() + taken.begin, others.end());
  } else {
    const Run replaced = someRun(pieces, choices);
    const auto at = pieces.erase(pieces.begin() + replaced.begin, pieces.begin() + replaced.end);
    pieces.insert(at, others.begin() + taken.begin, others.begin() + taken.end);
  }
  return joined(pieces);
}

}  // namespace brennet::fuzz
