#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brennet {

// Finds the characters that give a markup text its structure, one after the other. It looks at 64
// units at a time and keeps what it found there as bit masks.
//
// The text must outlive the scanner. Searches should go forward: going back is correct, but scans
// the earlier units again.
class MarkupScanner {
 public:
  explicit MarkupScanner(std::u16string_view text) : text_(text) {}

  [[nodiscard]] std::u16string_view text() const { return text_; }

  // Each returns the first position at or behind `from` that holds one of the characters, or the
  // length of the text.
  std::size_t findLess(std::size_t from) { return find(&Masks::less, from); }          // <
  std::size_t findTagStop(std::size_t from) { return find(&Masks::tagStop, from); }    // > " '
  std::size_t findStructural(std::size_t from) { return find(&Masks::either, from); }  // < > " '

 private:
  static constexpr std::size_t kBlock = 64;
  // Far enough from every offset that the block holds none of them.
  static constexpr std::size_t kNoBlock = std::size_t{0} - kBlock;

  // Bit i stands for the unit at block start + i.
  struct Masks {
    std::uint64_t less = 0;
    std::uint64_t tagStop = 0;
    std::uint64_t either = 0;
  };

  std::size_t find(std::uint64_t Masks::*mask, std::size_t from) {
    const std::size_t shift = from - block_;
    if (shift < kBlock) {
      const std::uint64_t found = masks_.*mask >> shift;
      if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found));
      from = block_ + kBlock;
    }
    return findInOtherBlocks(mask, from);
  }

  std::size_t findInOtherBlocks(std::uint64_t Masks::*mask, std::size_t from);
  void loadBlock(std::size_t block);

  std::u16string_view text_;
  std::size_t block_ = kNoBlock;
  Masks masks_;
};

}  // namespace brennet
