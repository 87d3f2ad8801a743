#pragma once

#include <cstdint>
#include <string_view>

namespace brennet {

// A step of reading or writing a text file.
enum class TextEvent : std::uint8_t {
  // encoding, length in units of that encoding
  Read,
  ConvertedTo,
  ConvertedFrom,
  // Units dropped from a block: count.
  NullsRemoved,
  // A block whose end cannot be examined: encoding.
  TruncationError,
  // The system's message, and its number.
  FileError,
  // Events without any values.
  Utf8Detection,
  Bom,
  EndianSwap,
  ConversionLoss,
};

// Receives what reading and writing did, step by step.
class TextLog {
 public:
  // An unknown number.
  static constexpr std::int64_t kUnknown = -1;

  // `text` is only valid during the call. Throws std::bad_alloc.
  virtual void add(TextEvent event, std::u16string_view text, std::int64_t number) = 0;
  void add(TextEvent event, std::u16string_view text = {}) { add(event, text, kUnknown); }
  void add(TextEvent event, std::int64_t number) { add(event, {}, number); }

  TextLog(const TextLog&) = default;
  TextLog& operator=(const TextLog&) = default;

 protected:
  TextLog() = default;
  ~TextLog() = default;
};

}  // namespace brennet
