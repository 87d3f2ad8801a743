#include "cli/TextPlaces.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace brennet::cli {
namespace {

void expectAsCounted(const std::u16string& text) {
  const TextPlaces places(text);
  for (std::size_t offset = 0; offset <= text.size() + 1; ++offset) {
    ASSERT_EQ(places.at(offset), positionAt(text, offset)) << offset << " of " << text.size();
  }
}

TEST(TextPlaces, AreThoseOfAShortText) {
  for (const char16_t* text : {u"", u"a", u"\r\n", u"\n\r", u"a\rb\nc\r\nd"}) expectAsCounted(text);
}

// Line ends and characters of two units lie across all borders of what is counted at a time.
TEST(TextPlaces, AreThoseOfALongText) {
  constexpr char16_t kUnits[] = {u'\r', u'\n', u'a', 0xD83D, 0xDE00};
  std::mt19937 random(20743);
  for (int i = 0; i < 8; ++i) {
    std::u16string text;
    while (text.size() < 3000) text += kUnits[random() % std::size(kUnits)];
    expectAsCounted(text);
  }
}

TEST(TextPlaces, AreThoseOfALongTextOfOneKind) {
  for (const char16_t* piece : {u"\r\n", u"\U0001F600", u"a"}) {
    std::u16string text = u"x";
    while (text.size() < 2100) text += piece;
    expectAsCounted(text);
    expectAsCounted(text.substr(1));
  }
}

}  // namespace
}  // namespace brennet::cli
