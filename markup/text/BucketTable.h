#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brennet {

// One row of the lists that bucket tables are made from.
struct NamedCode {
  std::u16string_view name;
  std::uint32_t code;  // never 0: find() answers 0 for an absent name
};

// `unit` with ASCII letters in lower case.
constexpr char16_t foldCase(char16_t unit) {
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

// Whether two names differ at most in the case of ASCII letters.
constexpr bool equalIgnoringCase(std::u16string_view left, std::u16string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char16_t a, char16_t b) { return foldCase(a) == foldCase(b); });
}

// How many decimal digits an entry of a bucket has for its two numbers.
struct EntryDigits {
  std::size_t length;  // for the length of the name
  std::size_t code;    // for the code

  constexpr std::size_t sum() const { return length + code; }
};

// The units that all buckets of a table over `list` take together.
template <std::size_t kRows>
constexpr std::size_t bucketTextLength(const NamedCode (&list)[kRows], EntryDigits digits) {
  std::size_t length = 0;
  for (const NamedCode& row : list) length += digits.sum() + row.name.size();
  return length;
}

// Whether every row of `list` fits into its digits and the rows are in strictly ascending order.
template <std::size_t kRows>
constexpr bool isProperList(const NamedCode (&list)[kRows], EntryDigits digits) {
  const auto fits = [](std::size_t number, std::size_t digitCount) {
    for (; digitCount > 0; --digitCount) number /= 10;
    return number == 0;
  };
  for (std::size_t i = 0; i < kRows; ++i) {
    if (!fits(list[i].name.size(), digits.length) || !fits(list[i].code, digits.code)) return false;
    if (list[i].code == 0 || (i > 0 && list[i - 1].name >= list[i].name)) return false;
  }
  return true;
}

// A hash table of names whose buckets are plain strings, built at compile time.
//
// A bucket is the concatenation of its entries; an entry is the length of the name, the code (both
// in decimal, padded with zeros) and the name, for example u"30038amp". The hash ignores case, so
// that all forms of a name share a bucket.
template <std::size_t kLengthDigits, std::size_t kCodeDigits, std::size_t kBuckets,
          std::size_t kTextLength>
class BucketTable {
 public:
  template <std::size_t kRows>
  constexpr explicit BucketTable(const NamedCode (&list)[kRows]) {
    std::array<std::size_t, kBuckets> sizes{};
    for (const NamedCode& row : list) {
      sizes[bucketOf(row.name)] += kLengthDigits + kCodeDigits + row.name.size();
    }
    for (std::size_t i = 0; i < kBuckets; ++i) starts_[i + 1] = starts_[i] + sizes[i];
    std::array<std::size_t, kBuckets + 1> ends = starts_;
    for (const NamedCode& row : list) {
      std::size_t& end = ends[bucketOf(row.name)];
      end = writeNumber(end, row.name.size(), kLengthDigits);
      end = writeNumber(end, row.code, kCodeDigits);
      for (const char16_t unit : row.name) text_[end++] = unit;
    }
  }

  // The bucket that holds `name`, or would hold it.
  [[nodiscard]] constexpr std::u16string_view bucket(std::u16string_view name) const {
    const std::size_t at = bucketOf(name);
    return std::u16string_view(text_.data(), text_.size())
        .substr(starts_[at], starts_[at + 1] - starts_[at]);
  }

  // The code of the first entry whose name `equal(entryName, name)` accepts, or 0.
  template <typename Equal>
  [[nodiscard]] constexpr std::uint32_t find(std::u16string_view name, Equal equal) const {
    std::u16string_view rest = bucket(name);
    while (!rest.empty()) {
      const std::size_t length = readNumber(rest.substr(0, kLengthDigits));
      const std::size_t entryLength = kLengthDigits + kCodeDigits + length;
      if (length == name.size() && equal(rest.substr(kLengthDigits + kCodeDigits, length), name)) {
        return static_cast<std::uint32_t>(readNumber(rest.substr(kLengthDigits, kCodeDigits)));
      }
      rest.remove_prefix(entryLength);
    }
    return 0;
  }

 private:
  static constexpr std::size_t bucketOf(std::u16string_view name) {
    std::uint32_t hash = 0;
    for (const char16_t unit : name) hash = hash * 31 + foldCase(unit);
    return hash % kBuckets;
  }

  static constexpr std::size_t readNumber(std::u16string_view digits) {
    std::size_t number = 0;
    for (const char16_t digit : digits)
      number = number * 10 + static_cast<std::size_t>(digit - u'0');
    return number;
  }

  constexpr std::size_t writeNumber(std::size_t at, std::size_t number, std::size_t digitCount) {
    for (std::size_t i = digitCount; i-- > 0; number /= 10) {
      text_[at + i] = static_cast<char16_t>(u'0' + number % 10);
    }
    return at + digitCount;
  }

  std::array<char16_t, kTextLength> text_{};
  std::array<std::size_t, kBuckets + 1> starts_{};
};

}  // namespace brennet
