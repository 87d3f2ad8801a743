// A registry that is not as it should be: whatever cannot be read gets its default, and nothing is
// touched.

#include "gameside/dota7/Dota7Settings.h"
#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet {
namespace {

using namespace std::string_literals;
using platform::dwordValue;
using platform::RegistryValue;
using test::bytesValue;
using test::key;
using test::utf8;
using Dota7BadInput = test::Dota7Test;

constexpr int kQ = 0x51;

TEST_F(Dota7BadInput, AKeyWhoseCodeIsNoneReadsAsNoKey) {
  const Dota7KeyField& hold = field(u"edt_HHoldKey");
  registry.set(hold.keyPath, hold.normal.text, bytesValue("Q"));
  for (const RegistryValue& bad :
       {RegistryValue{platform::kRegistryDword, "Q\0"s},
        RegistryValue{platform::kRegistryDword, ""},
        RegistryValue{platform::kRegistryDword, "Q\0\0\0\0"s}, bytesValue("Q\0\0"s),
        RegistryValue{platform::kRegistryText, "Q\0\0\0\0"s}, RegistryValue{11, "Q\0\0\0\0\0\0\0"s},
        bytesValue("QQ\0\0"s), dwordValue(0), dwordValue(0x100), dwordValue(0x80000051),
        dwordValue(0xFFFFFFFF), bytesValue(std::string(70000, 'Q'))}) {
    registry.set(hold.keyPath, hold.normal.code, bad);
    const platform::RegFile before = registry.content();
    settings.load();
    EXPECT_EQ(settings.key(hold), Dota7Key());
    manager.acceptChanges();
    EXPECT_EQ(registry.content(), before);
  }
}

TEST_F(Dota7BadInput, ANumberOfAnotherTypeIsWhatItsFourBytesSay) {
  for (const std::uint32_t type : {0U, 1U, 3U, 4U, 5U, 11U, 77U}) {
    registry.set(kDota7ControlPath, u"HHoldKeyCode", {type, "Q\0\0\0"s});
    registry.set(kDota7ControlPath, u"SLegacyKeys", {type, "\0\0\0\1"s});
    const platform::RegFile before = registry.content();
    settings.load();
    EXPECT_EQ(settings.key(field(u"edt_HHoldKey")), key(kQ)) << type;
    EXPECT_TRUE(settings.isOn(*findDota7Switch(u"chk_SLegacyKeys"))) << type;
    manager.acceptChanges();
    EXPECT_EQ(registry.content(), before) << type;
  }
}

TEST_F(Dota7BadInput, AKeyWhoseTextIsNoneHasNoModifier) {
  registry.set(kDota7ControlPath, u"HHoldKeyCode", dwordValue(kQ));
  for (const RegistryValue& bad :
       {bytesValue(""), bytesValue("W"), bytesValue("CTRL + W"), bytesValue("CTRL + Q\0"s),
        bytesValue("ctrl + q"), bytesValue("\xFF\xFE"), bytesValue(std::string(300, 'Q')),
        RegistryValue{platform::kRegistryText, "CTRL + Q"}, dwordValue(kQ)}) {
    registry.set(kDota7ControlPath, u"HHoldKey", bad);
    settings.load();
    EXPECT_EQ(settings.key(field(u"edt_HHoldKey")), key(kQ));
  }
  registry.set(kDota7ControlPath, u"HHoldKey", bytesValue("CTRL + Q"));
  settings.load();
  EXPECT_EQ(settings.key(field(u"edt_HHoldKey")), key(kQ, Dota7Key::kCtrl));
}

TEST_F(Dota7BadInput, ASwitchThatIsNoNumberIsOff) {
  for (const Dota7Switch& row : dota7Switches()) {
    registry.set(kDota7ControlPath, row.valueName, {platform::kRegistryDword, "\1\0"s});
    settings.load();
    EXPECT_FALSE(settings.isOn(row));
    registry.set(kDota7ControlPath, row.valueName, bytesValue("\1\0\0\0\0"s));
    settings.load();
    EXPECT_FALSE(settings.isOn(row));
  }
}

RegistryValue typedText(std::string bytes) {
  return {platform::kRegistryText, std::move(bytes)};
}

struct PhraseCase {
  const char* when;
  RegistryValue value;
  std::u16string shown;
};

class Dota7BadInputPhrases : public Dota7BadInput,
                             public testing::WithParamInterface<PhraseCase> {};

// When the chat page ends with OK, it hands back all phrases, changed or not.
TEST_P(Dota7BadInputPhrases, AreLeftAloneUntilThePlayerChangesThem) {
  const PhraseCase& row = GetParam();
  const Dota7Phrase& phrase = *findDota7Phrase(u"edt_SQuickChatString0");
  registry.set(kDota7PhrasesPath, phrase.valueName, row.value);
  const platform::RegFile before = registry.content();
  settings.load();
  EXPECT_EQ(settings.phrase(phrase), row.shown);
  settings.setPhrase(phrase, settings.phrase(phrase));
  EXPECT_EQ(registry.content(), before);

  settings.setPhrase(phrase, settings.phrase(phrase), true);
  EXPECT_EQ(phrases(phrase.valueName), bytesValue(dota7TextBytes(row.shown))) << "typed";
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);

  settings.setPhrase(phrase, u"gg");
  EXPECT_EQ(phrases(phrase.valueName), bytesValue("gg"));
  settings.setPhrase(phrase, row.shown);
  EXPECT_EQ(phrases(phrase.valueName), bytesValue(dota7TextBytes(row.shown)));
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Dota7BadInputPhrases,
    testing::Values(PhraseCase{"TooLong", bytesValue(std::string(261, 'a')), u""},
                    PhraseCase{"FarTooLong", bytesValue(std::string(70000, 'a')), u""},
                    PhraseCase{"Text", typedText("a\0\0\0"s), u""},
                    PhraseCase{"Number", dwordValue(0x41414141), u""},
                    PhraseCase{"Gb2312", bytesValue("\xD0\xBB\xFF"), u"\u043B\uFFFD"},
                    PhraseCase{"CutOff", bytesValue("a\xE8\xB0"), u"a\uFFFD"},
                    PhraseCase{"Surrogate", bytesValue("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD"}),
    [](const auto& test) { return std::string(test.param.when); });

TEST_F(Dota7BadInput, APhraseOfExactlyTheLimitIsRead) {
  registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue(std::string(260, 'a')));
  settings.load();
  EXPECT_EQ(settings.phrase(*findDota7Phrase(u"edt_SOnStartString0")), std::u16string(260, u'a'));
}

// Does everything that writes.
void changeEverything(Dota7KeyInfoManager& manager) {
  Dota7Settings& settings = manager.settings();
  settings.load();
  int code = 0;
  for (const Dota7KeyField& row : dota7KeyFields()) {
    EXPECT_TRUE(settings.storeKey(row, key(++code)));
  }
  for (const Dota7Switch& row : dota7Switches()) settings.setOn(row, true);
  for (const Dota7Phrase& row : dota7Phrases()) settings.setPhrase(row, u"gg");
  settings.clearKey(dota7KeyFields().front());
}

TEST_F(Dota7BadInput, WithoutRightsNothingIsReadOrWritten) {
  registry.set(kDota7ControlPath, u"HHoldKeyCode", dwordValue(kQ));
  const platform::RegFile before = registry.content();
  registry.denyWriting(kDota7ControlPath);
  registry.denyWriting(kDota7PhrasesPath);
  settings.load();
  EXPECT_EQ(settings.key(field(u"edt_HHoldKey")), Dota7Key());
  changeEverything(manager);
  manager.acceptChanges();
  changeEverything(manager);
  settings.reset();
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST(Dota7BadInputWithoutKeys, NothingIsReadOrWritten) {
  const test::ScopedRegistry registry;
  const platform::RegFile before = registry.content();
  Dota7KeyInfoManager manager;
  changeEverything(manager);
  manager.acceptChanges();
  changeEverything(manager);
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet
