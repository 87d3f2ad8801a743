// Changes in a registry that others have changed meanwhile.

#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet::test {
namespace {

TEST(Dota7LifeOfChanges, AreWrittenOnceTheKeyIsThere) {
  ScopedRegistry registry;
  Dota7KeyInfoManager manager;
  EXPECT_TRUE(manager.settings().storeKey(*findDota7KeyField(u"edt_HStopKey"), key('S')));
  registry.createKey(kDota7ControlPath);  // as the import of the first keys does with some delay
  manager.acceptChanges();
  const platform::RegFile content = registry.content();
  const auto* const code = content.find(below(kDota7ControlPath), u"HStopKeyCode");
  ASSERT_NE(code, nullptr);
  EXPECT_EQ(*code, platform::dwordValue('S'));
}

using Dota7LifeTest = Dota7Test;

TEST_F(Dota7LifeTest, ChangesThatWereNotWrittenAreForgottenByARefresh) {
  registry.denyWriting(kDota7ControlPath);
  EXPECT_TRUE(settings.storeKey(field(u"edt_HStopKey"), key('S')));
  registry.allowWriting(kDota7ControlPath);
  const platform::RegFile before = registry.content();
  manager.refresh();
  EXPECT_EQ(settings.key(field(u"edt_HStopKey")), Dota7Key());
  EXPECT_TRUE(manager.records().empty());
  manager.acceptChanges();
  EXPECT_EQ(registry.content(), before);
}

TEST_F(Dota7LifeTest, WhatCouldNotBeGivenBackIsNotGivenBackLater) {
  EXPECT_TRUE(settings.storeKey(field(u"edt_HStopKey"), key('S')));
  registry.denyWriting(kDota7ControlPath);
  manager.cancelChanges();
  registry.allowWriting(kDota7ControlPath);
  const platform::RegFile left = registry.content();
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue('S'));
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), left);
}

TEST_F(Dota7LifeTest, ResetTakesAwayWhatCannotBeRead) {
  registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue(std::string(300, 'x')));
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue(0x151));
  registry.set(kDota7ControlPath, u"HStopKey", bytesValue("Q"));
  registry.set(kDota7ControlPath, u"SLegacyKeys", bytesValue("odd"));
  const platform::RegFile before = registry.content();
  settings.load();
  settings.reset();
  EXPECT_EQ(phrases(u"SOnStartString0"), bytesValue(""));
  EXPECT_EQ(control(u"HStopKeyCode"), platform::dwordValue(0));
  EXPECT_EQ(control(u"HStopKey"), bytesValue(""));
  EXPECT_EQ(control(u"SLegacyKeys"), platform::dwordValue(0));
  EXPECT_EQ(control(u"HHoldKeyCode"), std::nullopt) << "what is not there is not made";
  manager.cancelChanges();
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet::test
