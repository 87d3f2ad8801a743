// Each allocation of a run fails, alone or with all that follow: changes that were not confirmed
// are undone, by the next run if there was no memory for that either.

#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/host/FailingNew.h"
#include "tests/support/FaultPoints.h"

namespace brennet::test {
namespace {

using platform::RegFile;

constexpr long kSample = 60;

enum class Told { Confirmed, Cancelled };

class Dota7OutOfMemory : public Dota7Test, public testing::WithParamInterface<Lasts> {
 protected:
  // The state before each try.
  void reset() {
    registry.removeKey(kDota7Path);
    registry.createKey(kDota7PhrasesPath);
    registry.set(kDota7ControlPath, u"HStopKeyCode", platform::dwordValue('S'));
    registry.set(kDota7PhrasesPath, u"SOnStartString0", bytesValue("a phrase of many letters"));
    before_ = registry.content();
  }

  static void edit(Dota7KeyInfoManager& run) {
    run.beginRun();
    run.settings().load();
    if (!run.settings().storeKey(field(u"edt_HStopKey"), key('T', Dota7Key::kAlt))) return;
    run.settings().setPhrase(*findDota7Phrase(u"edt_SOnStartString0"), u"another, as long as that");
    run.settings().setOn(*findDota7Switch(u"chk_SLegacyKeys"), true);
  }
  // As in the dialog: a failure there ends it as if it were cancelled.
  static Told play(Dota7KeyInfoManager& run, bool isConfirmed) {
    try {
      edit(run);
      if (isConfirmed) {
        run.acceptChanges();
        return Told::Confirmed;
      }
      run.cancelChanges();
    } catch (const std::bad_alloc&) {
      try {
        run.cancelChanges();
      } catch (const std::bad_alloc&) {
      }
    }
    return Told::Cancelled;
  }

  void failEachAllocation(bool isConfirmed) {
    reset();
    Dota7KeyInfoManager whole;
    const long count = allocationsOf([&] { play(whole, isConfirmed); });
    const RegFile confirmed = registry.content();
    EXPECT_EQ(confirmed == before_, !isConfirmed);
    for (const long point : faultPoints(count, kSample)) {
      reset();
      Told told = Told::Cancelled;
      {
        Dota7KeyInfoManager run;
        const FailingAllocation failing(point, GetParam());
        told = play(run, isConfirmed);
        EXPECT_TRUE(failing.hasFailed()) << point;
      }
      Dota7KeyInfoManager next;
      next.beginRun();
      EXPECT_EQ(registry.content(), told == Told::Confirmed ? confirmed : before_) << point;
      if (HasFailure()) return;
    }
  }

  RegFile before_;
};

TEST_P(Dota7OutOfMemory, InACancelledRunLeavesTheOldValues) {
  failEachAllocation(false);
}

TEST_P(Dota7OutOfMemory, InAnAcceptedRunLeavesTheOldValuesOrTheConfirmedOnes) {
  failEachAllocation(true);
}

INSTANTIATE_TEST_SUITE_P(, Dota7OutOfMemory, testing::Values(Lasts::Once, Lasts::ForEver),
                         [](const auto& lasts) {
                           return std::string(lasts.param == Lasts::Once ? "Once" : "ForEver");
                         });

}  // namespace
}  // namespace brennet::test
