#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace brennet::bench {

// A text in the encodings that the benchmarks read.
struct SampleText {
  const char* name;  // the case, as the report shows it
  std::u16string utf16;
  std::string utf8;
  std::string gb2312;
};

// Documents like settings files, one after the other below one root: short tags, numbers,
// attributes and a few Chinese phrases. 20 KB, 1 MB and 16 MB of UTF-8.
[[nodiscard]] std::span<const SampleText> sampleDocuments();

// Such a document of `units` UTF-16 units or a little more; always the same for the same size.
// `name` has to outlive it.
[[nodiscard]] SampleText sampleDocument(const char* name, std::size_t units);

// Texts without markup: Chinese characters with none, with half, and with nine tenths of ASCII.
[[nodiscard]] std::span<const SampleText> sampleChinese();

}  // namespace brennet::bench
