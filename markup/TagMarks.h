#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brennet {

// Where the tags of a piece of markup text begin and end: the offsets of all "<" and ">" in it,
// found by comparing many units at a time before any of them is looked at. Most tags are then known
// by two neighbouring entries, without a search of their own.
class TagMarks {
 public:
  // How many units a piece has, but for the last one of a text.
  static constexpr std::size_t kPiece = 4096;

  // Lists the marks of the piece of `text` that begins at `from`, which is in the text.
  void list(std::u16string_view text, std::size_t from);

  // Behind the piece. A new object has an empty piece at 0.
  [[nodiscard]] std::size_t end() const { return end_; }

  [[nodiscard]] std::size_t count() const { return count_; }
  // The offset of a mark in the text.
  [[nodiscard]] std::size_t operator[](std::size_t number) const {
    return start_ + offsets_[number];
  }

  // Whether a quotation mark could hide some of the marks. If not, there are only pairs of double
  // quotes, and no single ones, between any two of them.
  [[nodiscard]] bool quotesMatter() const { return quotesMatter_; }

 private:
  using Offset = std::uint16_t;
  using Word = std::size_t;  // one bit for each unit of a block
  // Offsets are written so many at a time, whether they are all needed or not.
  static constexpr std::size_t kTogether = 8;

  void append(Word marks, std::size_t count, std::size_t at);

  std::size_t start_ = 0;
  std::size_t end_ = 0;
  std::size_t count_ = 0;
  bool quotesMatter_ = false;
  std::array<Offset, kPiece + kTogether> offsets_;  // set as far as `count_`
};

}  // namespace brennet
