// What the pages show and edit, and what the registry gets of it.

#include "gameside/dota7/Dota7Settings.h"

#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet {
namespace {

using platform::dwordValue;
using test::bytesValue;
using test::key;
using test::utf8;

constexpr int kQ = 0x51;
constexpr int kW = 0x57;
constexpr Dota7Cast kCasts[] = {Dota7Cast::Normal, Dota7Cast::Quick};

class Dota7SettingsTest : public test::Dota7Test {
 protected:
  // Stores a key that no other field has.
  void store(std::u16string_view objectName, const Dota7Key& wanted) {
    EXPECT_TRUE(settings.storeKey(field(objectName), wanted));
  }
  // The key that a new manager reads, as after a restart.
  [[nodiscard]] static Dota7Key keyAfterRestart(const Dota7KeyField& row, Dota7Cast cast) {
    Dota7KeyInfoManager other;
    other.settings().load();
    other.settings().setCast(cast);
    return other.settings().key(row);
  }
};

TEST_F(Dota7SettingsTest, AreDefaultsWhereTheRegistryIsEmpty) {
  const platform::RegFile before = registry.content();
  settings.load();
  for (const Dota7KeyField& row : dota7KeyFields()) {
    EXPECT_EQ(settings.key(row), Dota7Key());
    EXPECT_EQ(settings.keyText(row), u"");
  }
  for (const Dota7Switch& row : dota7Switches()) EXPECT_FALSE(settings.isOn(row));
  for (const Dota7Phrase& row : dota7Phrases()) EXPECT_EQ(settings.phrase(row), u"");
  EXPECT_EQ(settings.cast(), Dota7Cast::Normal);
  EXPECT_EQ(registry.content(), before) << "reading writes nothing";
}

// In both cast modes every field writes its own two values, and nothing else.
TEST_F(Dota7SettingsTest, WriteThePairOfTheFieldAndTheCastMode) {
  for (const Dota7Cast cast : kCasts) {
    settings.setCast(cast);
    for (const Dota7KeyField& row : dota7KeyFields()) {
      settings.load();
      platform::RegFile expected = registry.content();
      ASSERT_TRUE(settings.storeKey(row, key(kQ, Dota7Key::kAlt)));
      const Dota7ValuePair& values = row.values(cast);
      expected.set(test::below(row.keyPath), values.code, dwordValue(kQ));
      expected.set(test::below(row.keyPath), values.text, bytesValue("ALT + Q"));
      EXPECT_EQ(registry.content(), expected);
      EXPECT_EQ(settings.key(row), key(kQ, Dota7Key::kAlt));
      EXPECT_EQ(settings.keyText(row), u"ALT + Q");
      EXPECT_EQ(keyAfterRestart(row, cast), key(kQ, Dota7Key::kAlt));
      manager.cancelChanges();
    }
  }
}

TEST_F(Dota7SettingsTest, ClearAKeyToNothing) {
  store(u"edt_HHoldKey", key(kQ));
  settings.clearKey(field(u"edt_HHoldKey"));
  expectKey(kDota7ControlPath, field(u"edt_HHoldKey").normal, 0, "");
  EXPECT_EQ(settings.key(field(u"edt_HHoldKey")), Dota7Key());
  EXPECT_EQ(settings.keyText(field(u"edt_HHoldKey")), u"");
}

struct ModifierCase {
  const char* when;
  Dota7Key asked;
  Dota7Key stored;
  std::string text;
};

class Dota7SettingsModifiers : public Dota7SettingsTest,
                               public testing::WithParamInterface<ModifierCase> {};

TEST_P(Dota7SettingsModifiers, SurviveARestart) {
  const ModifierCase& row = GetParam();
  const Dota7KeyField& stop = field(u"edt_HStopKey");
  ASSERT_TRUE(settings.storeKey(stop, row.asked));
  expectKey(kDota7ControlPath, stop.normal, static_cast<std::uint32_t>(row.stored.code), row.text);
  EXPECT_EQ(settings.key(stop), row.stored);
  EXPECT_EQ(keyAfterRestart(stop, Dota7Cast::Normal), row.stored);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Dota7SettingsModifiers,
    testing::Values(ModifierCase{"None", key(kQ), key(kQ), "Q"},
                    ModifierCase{"Ctrl", key(kQ, 0x11), key(kQ, 0x11), "CTRL + Q"},
                    ModifierCase{"Alt", key(kQ, 0x12), key(kQ, 0x12), "ALT + Q"},
                    ModifierCase{"Zero", key(kQ, 0), key(kQ), "Q"},
                    ModifierCase{"Shift", key(kQ, 0x10), key(kQ), "Q"},
                    ModifierCase{"CtrlByItself", key(0x11, 0x11), key(0x11), "CTRL"},
                    ModifierCase{"AltByItself", key(0x12, 0x12), key(0x12), "ALT"},
                    ModifierCase{"NoName", key(0xA0), key(0xA0), ""},
                    ModifierCase{"NoNameWithAlt", key(0xA0, 0x12), key(0xA0, 0x12), "ALT + "},
                    ModifierCase{"TheFullStop", key(0xBE, 0x11), key(0xBE, 0x11),
                                 utf8(u8"CTRL + \uFFFD\uFFFD")},
                    ModifierCase{"NoKey", key(0, 0x11), Dota7Key(), ""}),
    [](const auto& test) { return std::string(test.param.when); });

TEST_F(Dota7SettingsTest, RefuseAKeyThatAnotherFieldHas) {
  store(u"edt_HHoldKey", key(kQ));
  const platform::RegFile before = registry.content();
  const auto records = manager.records();
  for (const Dota7KeyField& row : dota7KeyFields()) {
    const bool isItself = row.objectName == u"edt_HHoldKey";
    EXPECT_EQ(settings.storeKey(row, key(kQ)), isItself);
  }
  EXPECT_EQ(registry.content(), before);
  EXPECT_EQ(manager.records(), records);
}

TEST_F(Dota7SettingsTest, RefuseAKeyOfTheChatPageOnTheBasicPageAndTheOtherWay) {
  store(u"edt_HQuickChatHot14Key", key(kQ, Dota7Key::kCtrl));
  EXPECT_FALSE(settings.storeKey(field(u"edt_HMoveKeyC"), key(kQ, Dota7Key::kCtrl)));
  store(u"edt_HMoveKeyC", key(kQ));
  EXPECT_FALSE(settings.storeKey(field(u"edt_HQuickChatHot0Key"), key(kQ)));
  expectKey(kDota7PhrasesPath, field(u"edt_HQuickChatHot14Key").normal, kQ, "CTRL + Q");
}

TEST_F(Dota7SettingsTest, TakeTheSameKeyWithAnotherModifier) {
  store(u"edt_HHoldKey", key(kQ));
  store(u"edt_HStopKey", key(kQ, Dota7Key::kCtrl));
  store(u"edt_HGlyphButtonKey", key(kQ, Dota7Key::kAlt));
}

TEST_F(Dota7SettingsTest, TakeNoKeyAnyNumberOfTimes) {
  store(u"edt_HHoldKey", Dota7Key());
  store(u"edt_HStopKey", Dota7Key());
}

TEST_F(Dota7SettingsTest, LookAtTheCastModeInForceAlone) {
  store(u"edt_HMoveKeyC", key(kQ));
  settings.setCast(Dota7Cast::Quick);
  store(u"edt_ItemKeyC0", key(kQ));
  EXPECT_FALSE(settings.storeKey(field(u"edt_HAttackKeyC"), key(kQ)));
  EXPECT_FALSE(settings.storeKey(field(u"edtHACSkill_3"), key(kQ)));
  // A field with only one pair of values is in force in both modes.
  store(u"edtOrderSkill_2", key(kW));
  settings.setCast(Dota7Cast::Normal);
  EXPECT_FALSE(settings.storeKey(field(u"edt_HAttackKeyC"), key(kW)));
}

TEST_F(Dota7SettingsTest, FreeAKeyThatIsClearedOrReplaced) {
  store(u"edt_HHoldKey", key(kQ));
  settings.clearKey(field(u"edt_HHoldKey"));
  store(u"edt_HStopKey", key(kQ));
  store(u"edt_HStopKey", key(kW));
  store(u"edt_HHoldKey", key(kQ));
}

TEST_F(Dota7SettingsTest, KeepEditsThroughAModeSwitch) {
  store(u"edt_ItemKeyC5", key(kQ));
  settings.setCast(Dota7Cast::Quick);
  EXPECT_EQ(settings.key(field(u"edt_ItemKeyC5")), Dota7Key());
  store(u"edt_ItemKeyC5", key(kW));
  manager.refresh();
  EXPECT_EQ(settings.cast(), Dota7Cast::Quick);
  EXPECT_EQ(settings.key(field(u"edt_ItemKeyC5")), key(kW));
  settings.setCast(Dota7Cast::Normal);
  EXPECT_EQ(settings.key(field(u"edt_ItemKeyC5")), key(kQ));
  expectKey(kDota7ControlPath, field(u"edt_ItemKeyC5").normal, kQ, "Q");
  expectKey(kDota7ControlPath, field(u"edt_ItemKeyC5").quick, kW, "W");
}

TEST_F(Dota7SettingsTest, CancelChangesOfTwoFieldsAndBothModes) {
  registry.set(kDota7ControlPath, u"HMoveKeyCodeC", dwordValue(kQ));
  registry.set(kDota7ControlPath, u"HMoveKeyC", bytesValue("Q"));
  const platform::RegFile before = registry.content();
  settings.load();
  for (const int code : {0x41, 0x42, 0x43}) {
    settings.setCast(Dota7Cast::Normal);
    store(u"edt_HMoveKeyC", key(code));
    store(u"edt_HHoldKey", key(code + 0x10));
    settings.setCast(Dota7Cast::Quick);
    store(u"edt_HMoveKeyC", key(code, Dota7Key::kCtrl));
    settings.setOn(*findDota7Switch(u"chk_SLegacyKeys"), true);
    manager.refresh();
  }
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
  settings.setCast(Dota7Cast::Normal);
  EXPECT_EQ(settings.key(field(u"edt_HMoveKeyC")), key(kQ));
  EXPECT_EQ(settings.key(field(u"edt_HHoldKey")), Dota7Key());
  EXPECT_FALSE(settings.isOn(*findDota7Switch(u"chk_SLegacyKeys")));
}

TEST_F(Dota7SettingsTest, WriteEachSwitchAsOneOrZero) {
  for (const Dota7Switch& row : dota7Switches()) {
    settings.setOn(row, true);
    EXPECT_TRUE(settings.isOn(row));
    EXPECT_EQ(control(row.valueName), dwordValue(1));
    settings.load();
    EXPECT_TRUE(settings.isOn(row));
    settings.setOn(row, false);
    EXPECT_FALSE(settings.isOn(row));
    EXPECT_EQ(control(row.valueName), dwordValue(0));
  }
}

TEST_F(Dota7SettingsTest, WriteEachPhraseCutAtItsLimit) {
  const std::string character = utf8(u8"\u8C22");
  for (const Dota7Phrase& row : dota7Phrases()) {
    for (const std::size_t length : {1U, 86U, 87U, 300U, 0U}) {
      const std::size_t left = std::min<std::size_t>(length, 86);
      settings.setPhrase(row, std::u16string(length, u'\u8C22'));
      std::string bytes;
      for (std::size_t i = 0; i < left; ++i) bytes += character;
      EXPECT_EQ(phrases(row.valueName), bytesValue(bytes)) << length;
      EXPECT_EQ(settings.phrase(row), std::u16string(left, u'\u8C22'));
    }
  }
  EXPECT_EQ(manager.records().size(), dota7Phrases().size());
}

TEST_F(Dota7SettingsTest, WriteAnEmptyPhraseWhereThereIsNone) {
  settings.load();
  settings.setPhrase(*findDota7Phrase(u"edt_SOnStartString14"), u"");
  EXPECT_EQ(phrases(u"SOnStartString14"), bytesValue(""));
}

TEST_F(Dota7SettingsTest, ReadThePhrasesAndTheirKeysAlone) {
  registry.set(kDota7PhrasesPath, u"SQuickChatString3", bytesValue(utf8(u8"\u8C22")));
  registry.set(kDota7PhrasesPath, u"HQuickChatHot3KeyCode", dwordValue(kQ));
  registry.set(kDota7ControlPath, u"HHoldKeyCode", dwordValue(kW));
  settings.loadPhrases();
  EXPECT_EQ(settings.phrase(*findDota7Phrase(u"edt_SQuickChatString3")), u"\u8C22");
  EXPECT_EQ(settings.key(field(u"edt_HQuickChatHot3Key")), key(kQ));
  EXPECT_EQ(settings.key(field(u"edt_HHoldKey")), Dota7Key());
}

TEST_F(Dota7SettingsTest, AreResetToTheirDefaultsUntilTheyAreCancelled) {
  store(u"edt_ItemKeyC0", key(kQ));
  settings.setCast(Dota7Cast::Quick);
  store(u"edt_ItemKeyC0", key(kW));
  store(u"edt_HQuickChatHot0Key", key(kQ));
  settings.setOn(*findDota7Switch(u"chk_SDoubleClickHero"), true);
  settings.setPhrase(*findDota7Phrase(u"edt_SQuickChatString0"), u"gg");
  manager.acceptChanges();
  const platform::RegFile before = registry.content();

  settings.reset();
  manager.refresh();
  EXPECT_EQ(settings.cast(), Dota7Cast::Normal);
  expectKey(kDota7ControlPath, field(u"edt_ItemKeyC0").normal, 0, "");
  expectKey(kDota7ControlPath, field(u"edt_ItemKeyC0").quick, 0, "");
  expectKey(kDota7PhrasesPath, field(u"edt_HQuickChatHot0Key").normal, 0, "");
  EXPECT_EQ(control(u"SDoubleClickHero"), dwordValue(0));
  EXPECT_EQ(phrases(u"SQuickChatString0"), bytesValue(""));
  EXPECT_EQ(control(u"HHoldKeyCode"), std::nullopt) << "it had its default";
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet
