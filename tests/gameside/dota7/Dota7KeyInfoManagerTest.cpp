// How a change gets into the registry and out of it again.

#include "gameside/dota7/Dota7KeyInfoManager.h"

#include <QMetaMethod>

#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet {
namespace {

using namespace std::string_literals;
using platform::dwordValue;
using platform::RegistryValue;
using test::bytesValue;
using test::utf8;
using Dota7KeyInfoManagerTest = test::Dota7Test;

Dota7Change numberChange(std::u16string_view name, std::uint32_t value) {
  Dota7Change change;
  change.keyPath = kDota7ControlPath;
  change.valueName = name;
  change.value = value;
  return change;
}

Dota7Change textChange(std::u16string_view text, bool hasText = true) {
  Dota7Change change = numberChange(u"Code", 0x51);
  change.kind = Dota7Change::Kind::NumbersAndText;
  change.textName = u"Text";
  change.text = text;
  change.hasText = hasText;
  return change;
}

TEST_F(Dota7KeyInfoManagerTest, WritesThroughASlot) {
  manager.record(u"a", numberChange(u"N", 1));
  EXPECT_TRUE(QMetaObject::invokeMethod(&manager, "writeRecords"));
  EXPECT_EQ(control(u"N"), dwordValue(1));
}

TEST_F(Dota7KeyInfoManagerTest, OwnsTheKeyNames) {
  EXPECT_EQ(manager.names().entries().size(), 106U);
  EXPECT_EQ(manager.keyText(0x51, Dota7Key::kCtrl), u"CTRL + Q");
  EXPECT_EQ(manager.keyText(0x51, Dota7Key::kNoModifier), u"Q");
  EXPECT_EQ(manager.keyName(0xBE), u"\xFFFD\xFFFD");
  EXPECT_EQ(manager.keyName(0xA0), u"");
  EXPECT_EQ(manager.names().entries().count(0xA0), 1U);
}

TEST_F(Dota7KeyInfoManagerTest, WritesTheFirstNumberAlone) {
  Dota7Change change = numberChange(u"First", 7);
  change.secondName = u"Second";
  change.textName = u"Text";
  change.text = u"Q";
  change.hasText = true;
  manager.writeValue(change);
  EXPECT_EQ(control(u"First"), dwordValue(7));
  EXPECT_EQ(control(u"Second"), std::nullopt) << "it is 0";
  EXPECT_EQ(control(u"Text"), std::nullopt) << "the change is of numbers";
}

TEST_F(Dota7KeyInfoManagerTest, WritesTheSecondNumberThatIsNotZero) {
  Dota7Change change = numberChange(u"First", 0);
  change.secondName = u"Second";
  change.secondValue = 0x80000001;
  manager.writeValue(change);
  EXPECT_EQ(control(u"First"), dwordValue(0));
  EXPECT_EQ(control(u"Second"), dwordValue(0x80000001));
}

TEST_F(Dota7KeyInfoManagerTest, WritesATextWithoutAZero) {
  manager.writeValue(textChange(u"Q"));
  EXPECT_EQ(control(u"Text"), bytesValue("\x51"));
  EXPECT_EQ(control(u"Code"), dwordValue(0x51));
}

TEST_F(Dota7KeyInfoManagerTest, WritesAnEmptyTextWithLengthZero) {
  for (const Dota7Change& change : {textChange(u"Q", false), textChange(u"", true)}) {
    manager.writeValue(change);
    EXPECT_EQ(control(u"Text"), bytesValue(""));
  }
}

TEST_F(Dota7KeyInfoManagerTest, WritesNoNumberWithoutAName) {
  Dota7Change change = textChange(u"Q");
  change.valueName.clear();
  manager.writeValue(change);
  EXPECT_EQ(control(u""), std::nullopt);
  EXPECT_EQ(control(u"Text"), bytesValue("Q"));
}

TEST_F(Dota7KeyInfoManagerTest, CutsTextsBetweenCharacters) {
  const std::string character = utf8(u8"\u8C22");
  for (const std::size_t length : {0U, 1U, 86U, 87U, 300U}) {
    manager.writeValue(textChange(std::u16string(length, u'\u8C22')));
    std::string expected;
    for (std::size_t i = 0; i < std::min<std::size_t>(length, 86); ++i) expected += character;
    EXPECT_EQ(control(u"Text"), bytesValue(expected)) << length;
  }
  // Four bytes would not fit behind these 258.
  manager.writeValue(textChange(std::u16string(86, u'\u8C22') + u"\U0001F600" + u"x"));
  EXPECT_EQ(control(u"Text").value_or(RegistryValue()).data.size(), 258U);
  manager.writeValue(textChange(std::u16string(86, u'\u8C22') + u"xyz"));
  EXPECT_EQ(control(u"Text").value_or(RegistryValue()).data.size(), 260U);
}

TEST_F(Dota7KeyInfoManagerTest, WritesTheLastChangeOfAFieldInTheOrderOfNames) {
  manager.record(u"edt_B", numberChange(u"B", 1));
  manager.record(u"edt_A", numberChange(u"Same", 1));
  manager.record(u"edt_C", numberChange(u"Same", 2));
  manager.record(u"edt_B", numberChange(u"B", 3));
  EXPECT_EQ(control(u"B"), std::nullopt) << "recording writes nothing";
  EXPECT_EQ(manager.records().begin()->first, u"edt_A");
  manager.writeRecords();
  EXPECT_EQ(control(u"B"), dwordValue(3));
  EXPECT_EQ(control(u"Same"), dwordValue(2)) << "edt_C comes behind edt_A";
}

TEST_F(Dota7KeyInfoManagerTest, GivesBackWhatStoodThere) {
  const RegistryValue odd{platform::kRegistryText, "\1\2\3"s};
  registry.set(kDota7ControlPath, u"Code", odd);
  registry.set(kDota7ControlPath, u"Other", dwordValue(9));
  const platform::RegFile before = registry.content();
  manager.writeValue(textChange(u"Q"));
  manager.writeValue(textChange(u"W"));
  EXPECT_NE(registry.content(), before);
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before) << "the text is absent again";
  EXPECT_TRUE(manager.records().empty());
}

TEST_F(Dota7KeyInfoManagerTest, GivesBackWhatStoodThereUnderANameInAnyCase) {
  registry.set(kDota7ControlPath, u"Code", dwordValue(9));
  const platform::RegFile before = registry.content();
  manager.writeValue(numberChange(u"CODE", 1));
  manager.writeValue(numberChange(u"Code", 2));
  manager.writeValue(numberChange(u"code", 3));
  EXPECT_EQ(control(u"Code"), dwordValue(3));
  manager.cancelChanges();
  EXPECT_EQ(control(u"Code"), dwordValue(9));
  EXPECT_EQ(registry.content(), before);
  // The absence of a value is restored as well.
  manager.writeValue(numberChange(u"new", 1));
  manager.writeValue(numberChange(u"NEW", 2));
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7KeyInfoManagerTest, AcceptsOnceAndForAll) {
  manager.record(u"a", numberChange(u"N", 1));
  manager.writeValue(numberChange(u"M", 1));
  manager.acceptChanges();
  EXPECT_EQ(control(u"N"), dwordValue(1)) << "what was recorded is written once more";
  const platform::RegFile accepted = registry.content();
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), accepted);
  EXPECT_TRUE(manager.records().empty());
}

TEST_F(Dota7KeyInfoManagerTest, CanStillCancelWhatARefreshForgot) {
  const platform::RegFile before = registry.content();
  manager.record(u"a", numberChange(u"N", 1));
  manager.writeRecords();
  manager.refresh();
  EXPECT_TRUE(manager.records().empty());
  EXPECT_EQ(control(u"N"), dwordValue(1));
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST(Dota7KeyInfoManagerWithoutKeys, WritesAndCreatesNothing) {
  const test::ScopedRegistry registry;
  const platform::RegFile before = registry.content();
  Dota7KeyInfoManager manager;
  manager.writeValue(textChange(u"Q"));
  manager.record(u"a", numberChange(u"N", 1));
  manager.acceptChanges();
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet
