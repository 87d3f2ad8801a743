// What is noted before a value is changed, and what is put back later.

#include "gameside/dota7/Dota7Undo.h"

#include "tests/gameside/dota7/Dota7Test.h"

namespace brennet::test {
namespace {

using platform::dwordValue;
using Value = std::optional<platform::RegistryValue>;

const Dota7Place kCode(kDota7ControlPath, u"HStopKeyCode");
const Dota7Place kText(kDota7ControlPath, u"HStopKey");
const Dota7Place kPhrase(kDota7PhrasesPath, u"SOnStartString0");

Value number(std::uint32_t value) {
  return dwordValue(value);
}

TEST(Dota7UndoNote, KeepsWhatStoodThereFirstAndAllThatWasToBePutThere) {
  Dota7Undos undos;
  EXPECT_TRUE(note(undos, kCode, number(1), dwordValue(2)).second);
  undos[kCode].isChanged = true;
  EXPECT_TRUE(note(undos, kCode, number(2), dwordValue(3)).second);
  EXPECT_FALSE(note(undos, kCode, number(3), dwordValue(2)).second) << "nothing new";
  EXPECT_TRUE(note(undos, kText, std::nullopt, bytesValue("Q")).second);
  ASSERT_EQ(undos.size(), 2U);
  EXPECT_EQ(undos[kCode].old, number(1));
  EXPECT_EQ(undos[kCode].written, (std::vector{dwordValue(2), dwordValue(3)}));
  EXPECT_EQ(undos[kText].old, std::nullopt);
}

TEST(Dota7UndoNote, BeginsAnewWhereSomebodyElseWasThereFirst) {
  Dota7Undos undos;
  undos[kCode] = {number(1), {dwordValue(2)}, false};
  EXPECT_TRUE(note(undos, kCode, number(9), dwordValue(2)).second);
  EXPECT_EQ(undos[kCode].old, number(9));
  EXPECT_EQ(undos[kCode].written, std::vector{dwordValue(2)});
  // But not after a change by the same run.
  undos[kCode].isChanged = true;
  EXPECT_TRUE(note(undos, kCode, number(8), dwordValue(3)).second);
  EXPECT_EQ(undos[kCode].old, number(9));
}

TEST(Dota7UndoNote, GoesOnWhereAnEarlierRunStopped) {
  Dota7Undos undos;
  undos[kCode] = {number(1), {dwordValue(2)}, false};
  EXPECT_TRUE(note(undos, kCode, number(2), dwordValue(3)).second);
  EXPECT_EQ(undos[kCode].old, number(1));
  EXPECT_EQ(undos[kCode].written, (std::vector{dwordValue(2), dwordValue(3)}));
}

struct Case {
  const char* name;
  Value old;
  Value now;
  bool isChanged;  // by this run
  Value after;
};

const Case kCases[] = {
    {"Written", number(1), number(2), false, number(1)},
    {"WrittenBefore", number(1), number(3), false, number(1)},
    {"WhereNothingWas", std::nullopt, number(2), false, std::nullopt},
    {"NotYetWritten", number(1), number(1), false, number(1)},
    {"NotYetMade", std::nullopt, std::nullopt, false, std::nullopt},
    {"OfSomebodyElse", number(1), number(9), false, number(9)},
    {"OfAnotherType", number(1), bytesValue(std::string("\2\0\0\0", 4)), false,
     bytesValue(std::string("\2\0\0\0", 4))},
    {"RemovedBySomebodyElse", number(1), std::nullopt, false, std::nullopt},
    {"OfSomebodyElseInThisRun", number(1), number(9), true, number(1)},
    {"RemovedInThisRun", number(1), std::nullopt, true, number(1)},
};

class Dota7UndoCase : public Dota7Test, public testing::WithParamInterface<Case> {};

TEST_P(Dota7UndoCase, GivesBackWhatIsOurs) {
  const Case& row = GetParam();
  if (row.now) registry.set(kDota7ControlPath, kCode.second, *row.now);
  Dota7Undos undos;
  undos[kCode] = {row.old, {dwordValue(2), dwordValue(3)}, row.isChanged};
  EXPECT_TRUE(giveBack(undos));
  EXPECT_TRUE(undos.empty());
  EXPECT_EQ(control(kCode.second), row.after);
}

INSTANTIATE_TEST_SUITE_P(Rows, Dota7UndoCase, testing::ValuesIn(kCases),
                         [](const auto& row) { return std::string(row.param.name); });

using Dota7UndoTest = Dota7Test;

TEST_F(Dota7UndoTest, UndoingKeepsWhatCouldNotBeDone) {
  registry.set(kDota7ControlPath, kCode.second, dwordValue(2));
  registry.set(kDota7PhrasesPath, kPhrase.second, bytesValue("new"));
  const Dota7Undos all{{kCode, {number(1), {dwordValue(2)}, false}},
                       {{u"Software\\Tollamere\\None", u"N"}, {number(1), {dwordValue(2)}, true}},
                       {kPhrase, {bytesValue("old"), {bytesValue("new")}, false}}};
  Dota7Undos undos = all;
  EXPECT_FALSE(giveBack(undos));
  ASSERT_EQ(undos.size(), 1U);
  EXPECT_EQ(undos.begin()->first.second, u"N");
  EXPECT_EQ(control(kCode.second), number(1));
  EXPECT_EQ(phrases(kPhrase.second), bytesValue("old"));
}

}  // namespace
}  // namespace brennet::test
