#include "bench/markup/SampleTexts.h"

#include <array>
#include <cstdlib>
#include <random>
#include <utility>

#include "markup/text/DoubleByteCodec.h"
#include "markup/text/Utf8.h"

namespace brennet::bench {
namespace {

// Always the same numbers, so that every run measures the same texts.
class Numbers {
 public:
  std::size_t below(std::size_t count) { return random_() % count; }

 private:
  std::mt19937 random_{20740};
};

std::u16string digits(std::size_t number) {
  const std::string text = std::to_string(number);
  return std::u16string(text.begin(), text.end());
}

SampleText inAllEncodings(const char* name, std::u16string text) {
  SampleText sample{name, std::move(text), {}, {}};
  sample.utf8.resize(utf8Length(sample.utf16));
  utf16ToUtf8(sample.utf16, sample.utf8);
  if (DoubleByteCodec::of(platform::kGb2312).encode(sample.utf16, sample.gb2312)) std::abort();
  return sample;
}

void appendKeys(std::u16string_view group, std::size_t count, Numbers& numbers,
                std::u16string& text) {
  text.append(u"<").append(group).append(u">\r\n");
  for (std::size_t i = 0; i < count; ++i) {
    text.append(u"<Key id=\"").append(digits(i)).append(u"\" autocast=\"");
    text.append(digits(numbers.below(2))).append(u"\">").append(digits(numbers.below(65281)));
    text.append(u"</Key>\r\n");
  }
  text.append(u"</").append(group).append(u">\r\n");
}

void appendPhrases(Numbers& numbers, std::u16string& text) {
  constexpr std::u16string_view kPhrases[] = {u"谢谢", u"中路不见了，小心。", u"gg &amp; bb",
                                              u"上路危险，快回来！", u"go go go"};
  text.append(u"<SelfChat>\r\n");
  for (std::size_t i = 0; i < std::size(kPhrases); ++i) {
    text.append(u"<Chat id=\"").append(digits(i)).append(u"\">");
    text.append(kPhrases[numbers.below(std::size(kPhrases))]).append(u"</Chat>\r\n");
  }
  text.append(u"</SelfChat>\r\n");
}

std::u16string settings(std::size_t units) {
  Numbers numbers;
  std::u16string text = u"<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n<Files>\r\n";
  while (text.size() < units) {
    text.append(u"<KeyInfo enable=\"1\" index=\"0\">\r\n<ZoomValue>100</ZoomValue>\r\n");
    appendKeys(u"HeroSkillKey", 12, numbers, text);
    appendKeys(u"ItemKey", 6, numbers, text);
    appendPhrases(numbers, text);
    text.append(u"<LockMouseFlag>1</LockMouseFlag>\r\n<Empty/>\r\n</KeyInfo>\r\n");
  }
  return text.append(u"</Files>\r\n");
}

// Words of ASCII and of Chinese in turn; `percent` of the characters are ASCII.
std::u16string chinese(std::size_t units, std::size_t percent) {
  constexpr std::size_t kTurn = 40;
  Numbers numbers;
  std::u16string text;
  while (text.size() < units) {
    for (std::size_t i = 0; i < kTurn; ++i) {
      const bool ascii = i * 100 < percent * kTurn;
      // The first 3755 ideographs of the code page stand in rows B0 to D7; these are among them.
      constexpr std::u16string_view kIdeographs =
          u"的一是在不了有和人这中大为上个国我以要他时来用们生到作地于出就分对成会可主发年动";
      text += ascii ? static_cast<char16_t>(u'a' + numbers.below(26))
                    : kIdeographs[numbers.below(kIdeographs.size())];
    }
  }
  return text;
}

constexpr std::size_t kMegabyte = std::size_t{1} << 20U;

}  // namespace

SampleText sampleDocument(const char* name, std::size_t units) {
  return inAllEncodings(name, settings(units));
}

std::span<const SampleText> sampleDocuments() {
  static const std::array<SampleText, 3> documents = {
      sampleDocument("20KB", 20'000),
      sampleDocument("1MB", kMegabyte),
      sampleDocument("16MB", 16 * kMegabyte),
  };
  return documents;
}

std::span<const SampleText> sampleChinese() {
  static const std::array<SampleText, 3> texts = {
      inAllEncodings("chinese", chinese(kMegabyte, 0)),
      inAllEncodings("half-ascii", chinese(kMegabyte, 50)),
      inAllEncodings("mostly-ascii", chinese(kMegabyte, 90)),
  };
  return texts;
}

}  // namespace brennet::bench
