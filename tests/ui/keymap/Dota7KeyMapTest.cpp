#include "ui/keymap/Dota7KeyMap.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet::test {
namespace {

class Dota7KeyMapTest : public Dota7Test {
 protected:
  KeyMap map() { return keyMapOf(manager.settings()); }
};

TEST_F(Dota7KeyMapTest, HasEachField) {
  manager.settings().reset();
  EXPECT_TRUE(map().empty());
  for (const Dota7KeyField& field : dota7KeyFields()) {
    manager.settings().reset();
    manager.settings().setCast(field.quick.text.empty() ? Dota7Cast::Normal : Dota7Cast::Quick);
    ASSERT_TRUE(manager.settings().storeKey(field, {'Q', Dota7Key::kAlt}));
    const KeyMap keys = map();
    ASSERT_EQ(keys.size(), 1U);
    EXPECT_EQ(keys[0].target, MapTarget(&field));
    EXPECT_EQ(keys[0].press, (MapPress{'Q', KeyWord::kAlt}));
    EXPECT_EQ(keys[0].key, QStringLiteral("ALT + Q"));
    EXPECT_FALSE(keys[0].tag.isEmpty() || keys[0].what.isEmpty() || keys[0].where.isEmpty());
  }
}

TEST_F(Dota7KeyMapTest, TellsTheGroupsApart) {
  manager.settings().reset();
  const struct {
    const Dota7KeyField& field;
    KeyKind kind;
  } kRows[] = {{dota7UnitKeys()[0], KeyKind::Option},
               {dota7ItemKeys()[6], KeyKind::Item},
               {dota7SkillKeys(Dota7Cast::Quick)[5], KeyKind::HeroSkill},
               {dota7ChatKeys()[14], KeyKind::Chat}};
  int code = 'A';
  for (const auto& row : kRows) {
    ASSERT_TRUE(manager.settings().storeKey(row.field, {code++, Dota7Key::kNoModifier}));
  }
  const KeyMap keys = map();
  ASSERT_EQ(keys.size(), std::size(kRows));
  for (const auto& row : kRows) {
    EXPECT_TRUE(std::ranges::any_of(keys, [&](const MapUse& use) {
      return use.target == MapTarget(&row.field) && use.kind == row.kind;
    }));
  }
}

// Ctrl and Alt by themselves are keys in this mode.
TEST_F(Dota7KeyMapTest, HasModifiersThatAreKeys) {
  manager.settings().reset();
  ASSERT_TRUE(
      manager.settings().storeKey(dota7UnitKeys()[0], {Dota7Key::kCtrl, Dota7Key::kNoModifier}));
  ASSERT_EQ(map().size(), 1U);
  EXPECT_EQ(map()[0].press, (MapPress{Dota7Key::kCtrl, 0}));
}

}  // namespace
}  // namespace brennet::test
