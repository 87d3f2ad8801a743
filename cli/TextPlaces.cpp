#include "cli/TextPlaces.h"

#include <algorithm>

namespace brennet::cli {
namespace {

constexpr std::size_t kStep = 1024;

}  // namespace

TextPlaces::TextPlaces(std::u16string_view text) : text_(text), known_{{0, {}}} {
  for (std::size_t offset = kStep; offset < text.size(); offset += kStep) {
    known_.push_back({offset, from(known_.back(), offset)});
  }
}

TextPosition TextPlaces::at(std::size_t offset) const {
  offset = std::min(offset, text_.size());
  const auto behind = std::ranges::upper_bound(known_, offset, {}, &Known::offset);
  return from(*(behind - 1), offset);
}

TextPosition TextPlaces::from(const Known& known, std::size_t offset) const {
  TextPosition position = positionAt(text_.substr(known.offset), offset - known.offset);
  if (position.line == 1) position.column += known.position.column - 1;
  position.line += known.position.line - 1;
  return position;
}

}  // namespace brennet::cli
