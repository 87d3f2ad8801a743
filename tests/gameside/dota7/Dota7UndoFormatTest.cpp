// What a run has changed, as bytes.

#include <random>

#include "gameside/dota7/Dota7Undo.h"
#include "platform/Checksum.h"
#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet::test {
namespace {

using namespace std::string_literals;
using platform::dwordValue;
using platform::RegistryValue;

constexpr std::string_view kRegistry = "/a/registry";
constexpr std::size_t kSumBytes = 16;

const Dota7Place kCode(kDota7ControlPath, u"HStopKeyCode");
const Dota7Place kPhrase(kDota7PhrasesPath, u"SOnStartString14");

Dota7Undos sample() {
  Dota7Undos undos;
  undos[kCode] = {dwordValue(1), {dwordValue(2), dwordValue(3)}, false};
  undos[kPhrase] = {std::nullopt, {bytesValue(""), bytesValue("\0\xFF"s)}, false};
  undos[{std::u16string(kDota7ControlPath), u"SLegacyKeys"}] = {
      RegistryValue{7, std::string(70000, 'x')}, {}, false};
  return undos;
}

void expectSame(const std::optional<Dota7Undos>& undos, const Dota7Undos& expected) {
  ASSERT_TRUE(undos.has_value());
  ASSERT_EQ(undos->size(), expected.size());
  for (const auto& [place, undo] : expected) {
    ASSERT_EQ(undos->count(place), 1U);
    EXPECT_EQ(undos->at(place).old, undo.old);
    EXPECT_EQ(undos->at(place).written, undo.written);
    EXPECT_FALSE(undos->at(place).isChanged);
  }
}

// The bytes with the right checksum.
std::string sealed(std::string bytes) {
  bytes.resize(bytes.size() - kSumBytes);
  std::string sum;
  platform::appendDigits(platform::checksum(bytes), sum);
  return bytes + sum;
}

TEST(Dota7UndoFormat, ReadsBackWhatWasWritten) {
  expectSame(parseDota7Undos(serialize(sample(), kRegistry), kRegistry), sample());
  expectSame(parseDota7Undos(serialize({}, kRegistry), kRegistry), {});
  Dota7Undos changed = sample();
  changed[kCode].isChanged = true;  // only the run that made the change knows that
  expectSame(parseDota7Undos(serialize(changed, ""), ""), sample());
}

TEST(Dota7UndoFormat, StaysAsItIs) {
  Dota7Undos undos;
  undos[kPhrase] = {bytesValue("x"), {dwordValue(0x51)}, false};
  std::string expected = "brennet dota7 undo 1\n";
  expected += "\2\0\0\0ab\1\0\0\0"s;  // the registry, one entry
  for (const std::u16string_view text : {kDota7PhrasesPath, std::u16string_view(kPhrase.second)}) {
    expected += static_cast<char>(2 * text.size());
    expected += "\0\0\0"s;
    for (const char16_t unit : text) (expected += static_cast<char>(unit)) += '\0';
  }
  expected += "\1\0\0\0\3\0\0\0\1\0\0\0x"s;           // the old value, bytes
  expected += "\1\0\0\0\4\0\0\0\4\0\0\0\x51\0\0\0"s;  // one value was written, a number
  EXPECT_EQ(serialize(undos, "ab"), sealed(expected + std::string(kSumBytes, ' ')));
}

TEST(Dota7UndoFormat, TellsNothingOfAnotherRegistry) {
  EXPECT_FALSE(parseDota7Undos(serialize(sample(), kRegistry), "/another").has_value());
}

TEST(Dota7UndoFormat, TellsOfNoValueThatThePagesDoNotEdit) {
  for (const Dota7Place& place :
       {Dota7Place(kDota7ControlPath, u"Another"), Dota7Place(kDota7ControlPath, u""),
        Dota7Place(kDota7PhrasesPath, u"HStopKeyCode"),
        Dota7Place(kDota7ControlPath, u"SOnStartString0"),
        Dota7Place(u"Software\\Other", u"HStopKeyCode")}) {
    Dota7Undos undos = sample();
    undos[place] = {dwordValue(1), {dwordValue(2)}, false};
    expectSame(parseDota7Undos(serialize(undos, kRegistry), kRegistry), sample());
  }
  // A forged name of the same length.
  Dota7Undos undos;
  undos[kCode] = {dwordValue(1), {}, false};
  std::string bytes = serialize(undos, kRegistry);
  const std::size_t at = bytes.find("S\0t\0o\0p\0"s);
  ASSERT_NE(at, std::string::npos);
  bytes[at] = 's';
  EXPECT_FALSE(parseDota7Undos(sealed(bytes), kRegistry).has_value());
}

TEST(Dota7UndoFormat, RefusesWhatIsDamaged) {
  Dota7Undos undos;
  undos[kCode] = {dwordValue(1), {dwordValue(2)}, false};
  const std::string bytes = serialize(undos, kRegistry);
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    EXPECT_FALSE(parseDota7Undos(bytes.substr(0, size), kRegistry).has_value()) << size;
    std::string other = bytes;
    other[size] = static_cast<char>(other[size] ^ 1);
    EXPECT_FALSE(parseDota7Undos(other, kRegistry).has_value()) << size;
  }
  EXPECT_FALSE(parseDota7Undos(bytes + "x", kRegistry).has_value());
  EXPECT_FALSE(parseDota7Undos(std::string(1000, '\0'), kRegistry).has_value());
}

// The right checksum is no promise that the rest is right: numbers may say anything.
TEST(Dota7UndoFormat, IsReadToItsEndAtMost) {
  const std::string bytes = serialize(sample(), kRegistry);
  std::mt19937 random(1);
  for (int run = 0; run < 3000; ++run) {
    std::string forged = bytes;
    for (unsigned i = 1 + random() % 4; i > 0; --i) {
      forged[random() % 400] = static_cast<char>(random() % 3 == 0 ? 0xFF : random());
    }
    if (random() % 4 == 0) forged.resize(37 + random() % 400);
    static_cast<void>(parseDota7Undos(sealed(forged), kRegistry));
  }
}

TEST(Dota7UndoFormat, RefusesAnEntryThatComesTwice) {
  Dota7Undos undos;
  undos[kCode] = {dwordValue(1), {}, false};
  const std::string bytes = serialize(undos, "");
  const std::size_t head = std::string("brennet dota7 undo 1\n").size() + 8;
  const std::string entry = bytes.substr(head, bytes.size() - head - kSumBytes);
  std::string twice = bytes.substr(0, head) + entry + entry + std::string(kSumBytes, ' ');
  EXPECT_FALSE(parseDota7Undos(sealed(twice), "").has_value()) << "one too many";
  twice[head - 4] = 2;
  EXPECT_FALSE(parseDota7Undos(sealed(twice), "").has_value());
}

}  // namespace
}  // namespace brennet::test
