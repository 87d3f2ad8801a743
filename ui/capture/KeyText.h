#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace brennet {

// The text of a captured key, held in place: a key press must not allocate. Holds two modifiers and
// the longest name of a key with room to spare; anything longer is cut off.
class KeyText {
 public:
  static constexpr std::size_t kCapacity = 40;

  KeyText() = default;
  explicit KeyText(std::u16string_view text) { *this += text; }

  KeyText& operator+=(std::u16string_view text) {
    const std::size_t count = std::min(text.size(), kCapacity - size_);
    std::copy_n(text.begin(), count, units_.begin() + static_cast<std::ptrdiff_t>(size_));
    size_ += count;
    return *this;
  }

  // Valid as long as this object is, and unchanged.
  [[nodiscard]] std::u16string_view view() const { return {units_.data(), size_}; }

 private:
  std::array<char16_t, kCapacity> units_{};
  std::size_t size_ = 0;
};

}  // namespace brennet
