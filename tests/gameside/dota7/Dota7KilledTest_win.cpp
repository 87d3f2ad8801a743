// Runs in processes that are killed, on the system's own registry.

#include <string>

#include "tests/gameside/dota7/Dota7Player_win.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/support/Process.h"

namespace brennet::test {
namespace {

using Dota7Killed = Dota7Test;

TEST_F(Dota7Killed, LeavesTheOldOrTheConfirmedValuesToTheNextRun) {
  registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
  registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue("go"));
  const platform::RegFile before = registry.content();
  for (int steps = 0; steps <= kPlayerSteps; ++steps) {
    Process player(BRENNET_DOTA7_PLAYER, {std::to_string(steps)});
    ASSERT_EQ(player.wait(), kPlayerKilled);
    const platform::RegFile left = registry.content();
    EXPECT_EQ(left == before, steps == 0) << steps;
    manager.beginRun();
    EXPECT_EQ(registry.content(), steps == kPlayerSteps ? left : before) << steps;
  }
}

}  // namespace
}  // namespace brennet::test
