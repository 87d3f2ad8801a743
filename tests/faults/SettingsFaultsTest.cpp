// Whole operations on a player's two files, in which any system call fails, or is the last one of
// the process or of the machine.

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "model/HotkeyConfig.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/KeptFiles.h"
#include "platform/Patience.h"
#include "tests/faults/StandIn.h"
#include "tests/support/FaultPoints.h"
#include "tests/support/ScopedProfile.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {
namespace {

constexpr char kSettings[] = "/folder/KeyInfo.xml";
constexpr char16_t kSettingsName[] = u"/folder/KeyInfo.xml";
constexpr char kOldPreferences[] = "[Mine]\r\nkept=1\r\n\r\n[Gameplay]\r\ncustomkeys=0\r\n\r\n";
constexpr std::uint32_t kOldTime = 1;
constexpr std::uint32_t kNewTime = 2;
constexpr int kHeroSkill = 3;
constexpr KeyWord kKey{0x51, 0};

struct Setting {
  const char* name;
  void (*prepare)(ModelFileSystem& system, const Path& preferences);
};

const Setting kPlaces[] = {
    {"Usual", [](ModelFileSystem&, const Path&) {}},
    {"InTwoSteps", [](ModelFileSystem& s, const Path&) { s.nature.twoSteps = true; }},
    {"NothingNew",
     [](ModelFileSystem& s, const Path& preferences) {
       s.nature.closedFolders = {"/folder", preferences.parent_path()};
     }},
    {"OnMounts",
     [](ModelFileSystem& s, const Path& preferences) {
       s.nature.mounts = {kSettings, preferences};
     }},
    {"OfAnotherOwner",
     [](ModelFileSystem& s, const Path& preferences) {
       s.nature.foreignFiles = {kSettings, preferences};
     }},
    {"TwoNames",
     [](ModelFileSystem& s, const Path& preferences) {
       s.makeFolder("/elsewhere");
       s.makeSecondName(kSettings, "/elsewhere/settings");
       if (s.look(preferences).kind == FileFacts::Kind::File) {
         s.makeSecondName(preferences, "/elsewhere/preferences");
       }
     }},
    {"NoPreferences", [](ModelFileSystem& s, const Path& p) { s.removeFile(p); }},
    {"BusyForAMoment",
     [](ModelFileSystem& s, const Path& preferences) {
       s.nature.busy = {{kSettings, 3}, {preferences, 6}};
     }},
};

class SettingsFaults : public testing::TestWithParam<Setting> {
 protected:
  SettingsFaults() : profile_(home_.path()) {
    preferences_ =
        platform::pathFromNarrow(platform::profileFolder() + platform::gamePreferencesSuffix());
  }

  // A player's files, with one of his keys changed in memory, and the session that will save it.
  void begin() {
    in_.reset();
    in_.emplace();
    in_->model.makeFolder("/folder");
    in_->model.makeFolder(preferences_.parent_path());
    in_->model.makeFile(preferences_, kOldPreferences);
    config_ = HotkeyConfig();
    EXPECT_TRUE(config_.Save(kSettingsName, kOldTime));
    EXPECT_TRUE(config_.Load(kSettingsName));
    GetParam().prepare(in_->model, preferences_);
    old_ = filesOf();
    EXPECT_TRUE(config_.SetHeroSkillKey(kHeroSkill, kKey, true));
  }

  struct Files {
    std::string settings;
    std::string preferences;
  };

  Files filesOf() { return {in_->model.contentOf(kSettings), in_->model.contentOf(preferences_)}; }

  // Finds out what the files become without a fault, and how many calls a save makes.
  int countCalls() {
    begin();
    HotkeyConfig loaded;
    EXPECT_TRUE(loaded.Load(kSettingsName));
    followed_ = filesOf().preferences;
    begin();
    in_->faulty.plan(-1, Fault::None);
    EXPECT_TRUE(config_.Save(kSettingsName, kNewTime));
    new_ = filesOf();
    EXPECT_NE(new_.settings, old_.settings);
    EXPECT_NE(new_.preferences, old_.preferences);
    return in_->faulty.calls();
  }

  enum class Told { Nothing, Saved, NotSaved };

  void checkNextSession(Told told, const std::string& what) {
    in_->model.endPrograms();
    in_->faulty.plan(-1, Fault::None);
    std::string preferences;
    const std::error_code error = platform::readFile(preferences_, preferences, platform::kAnySize);
    if (error) preferences = platform::isMissing(error) ? "(none)" : error.message();
    EXPECT_TRUE(preferences == old_.preferences || preferences == new_.preferences)
        << what << ": " << preferences;

    HotkeyConfig next;
    EXPECT_TRUE(next.Load(kSettingsName)) << what;
    const bool isNew = next.LastSaveTime() == kNewTime;
    EXPECT_EQ(next.scheme().HeroSkillKey[kHeroSkill].sameKey(kKey), isNew) << what;
    if (told == Told::Saved) {
      EXPECT_TRUE(isNew) << what;
    }
    if (told == Told::NotSaved) {
      EXPECT_FALSE(isNew) << what;
    }
    // The game's file follows each load.
    EXPECT_EQ(in_->model.contentOf(preferences_), isNew ? new_.preferences : followed_) << what;
    EXPECT_TRUE(next.Save(kSettingsName, next.LastSaveTime())) << what;
    EXPECT_EQ(in_->model.listing("/folder"), std::string(kSettings) + "\n") << what;
    EXPECT_EQ(in_->model.listing(preferences_.parent_path()), preferences_.generic_string() + "\n")
        << what;
    EXPECT_EQ(in_->model.listing("/private"), "") << what;
  }

  // Whether a file that was put aside has this content.
  bool isKept(const std::string& content) {
    constexpr int kSeconds = 4;  // each has a name of its own, one after the other
    for (int i = 0; i < kSeconds; ++i) {
      const Path name = platform::keptName(kSettings, in_->model.wallTime() + i);
      if (in_->model.contentOf(name) == content) return true;
    }
    return false;
  }

  Told save() { return config_.Save(kSettingsName, kNewTime) ? Told::Saved : Told::NotSaved; }

  TempFolder home_;  // only its name is used; nothing is written there
  ScopedProfile profile_;
  Path preferences_;
  std::optional<StandIn> in_;
  HotkeyConfig config_;
  Files old_;
  Files new_;
  std::string followed_;  // the game's file after a load of the old settings
};

TEST_P(SettingsFaults, OfASaveLeaveItWholeAndTruthful) {
  const int calls = countCalls();
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood}) {
    for (const Obstacle obstacle : {Obstacle::Other, Obstacle::Denied, Obstacle::Held}) {
      for (int call = 0; call < calls; ++call) {
        begin();
        in_->faulty.plan(call, fault, obstacle);
        const Told told = save();
        checkNextSession(told,
                         described(*in_, call) + (fault == Fault::Fails ? " once" : " for good"));
        if (HasFailure()) return;
      }
    }
  }
}

TEST_P(SettingsFaults, ThatEndTheProcessLeaveBothFilesWhole) {
  const int calls = countCalls();
  for (const Fault fault : {Fault::EndsBefore, Fault::EndsInside, Fault::EndsAfter}) {
    for (int call = 0; call < calls; ++call) {
      begin();
      in_->faulty.plan(call, fault);
      static_cast<void>(save());
      checkNextSession(Told::Nothing, described(*in_, call));
      if (HasFailure()) return;
    }
  }
}

constexpr long kPowerLosses = 7 * 64;
constexpr long kSomePowerLosses = 12;

TEST_P(SettingsFaults, ThatTakeThePowerAwayLeaveBothFilesWhole) {
  const int calls = countCalls();
  for (int call = 0; call <= calls; ++call) {
    for (const long way : faultPoints(kPowerLosses, kSomePowerLosses)) {
      begin();
      in_->faulty.plan(call, Fault::EndsAfter);
      const Told told = save();
      in_->model.losePower(static_cast<unsigned>(way));
      checkNextSession(call == calls ? told : Told::Nothing,
                       described(*in_, call) + ", way " + std::to_string(way));
      if (HasFailure()) return;
    }
  }
}

TEST_P(SettingsFaults, OfALoadLeaveTheFilesOfThePlayer) {
  begin();
  in_->faulty.plan(-1, Fault::None);
  HotkeyConfig loaded;
  EXPECT_TRUE(loaded.Load(kSettingsName));
  const int calls = in_->faulty.calls();
  static_cast<void>(countCalls());
  for (const Fault fault : {Fault::Fails, Fault::FailsForGood}) {
    for (int call = 0; call < calls; ++call) {
      begin();
      in_->model.makeFile(preferences_, kOldPreferences);
      in_->faulty.plan(call, fault, Obstacle::Held);
      static_cast<void>(loaded.Load(kSettingsName));
      const std::string after = in_->model.contentOf(preferences_);
      EXPECT_NE(after.find("kept=1"), std::string::npos) << described(*in_, call);
      EXPECT_EQ(in_->model.contentOf(kSettings), old_.settings) << described(*in_, call);
      if (HasFailure()) return;
    }
  }
}

// Another process replaces the game's file at that moment, in two steps, and ends between them.
TEST_P(SettingsFaults, LosePreferencesOfTheGameToNobodyWhoMovesThemAway) {
  begin();
  if (in_->model.contentOf(preferences_) == "(none)") return;
  Path backup = preferences_;
  backup += ".brennet-old";
  bool isMoved = false;
  in_->model.others.beforeOpen = [&](const Path& path, OpenFor purpose) {
    if (isMoved || path != preferences_ || purpose != OpenFor::Reading) return;
    isMoved = true;
    in_->model.nature.closedFolders.clear();
    in_->model.nature.foreignFiles.clear();
    EXPECT_FALSE(in_->model.move(preferences_, backup));
  };
  EXPECT_TRUE(config_.Save(kSettingsName, kNewTime));
  EXPECT_TRUE(isMoved);
  EXPECT_NE(in_->model.contentOf(preferences_).find("kept=1"), std::string::npos);
}

// A save waits once for each of the two files.
TEST_P(SettingsFaults, WaitOnceForEachFile) {
  begin();
  constexpr int kForever = 1000;
  in_->model.nature.busy = {{kSettings, kForever}, {preferences_, kForever}};
  in_->faulty.plan(-1, Fault::None);
  const int before = in_->model.pauses;
  EXPECT_FALSE(config_.Save(kSettingsName, kNewTime));
  EXPECT_LE(in_->model.pauses - before, 2 * platform::Patience::kPauses);
}

// What could not be loaded stays in place, or put aside, whatever happens while it is saved over.
TEST_P(SettingsFaults, LoseNothingThatWasNotRead) {
  static_cast<void>(countCalls());
  constexpr int kMoreThanAnySave = 200;
  constexpr char kDamaged[] = "<KeyInfo>damaged";
  for (const Fault fault : {Fault::EndsBefore, Fault::EndsInside, Fault::EndsAfter, Fault::Fails,
                            Fault::FailsForGood}) {
    for (int call = 0; call < kMoreThanAnySave; ++call) {
      begin();
      // A folder that takes no new file takes no kept file either.
      if (in_->model.nature.closedFolders.contains("/folder")) return;
      in_->model.makeFile(kSettings, kDamaged);
      GetParam().prepare(in_->model, preferences_);
      in_->faulty.plan(call, fault);
      static_cast<void>(config_.Save(kSettingsName, kNewTime, platform::OldContent::Keep));
      in_->model.endPrograms();
      in_->faulty.plan(-1, Fault::None);
      std::string content;
      EXPECT_FALSE(platform::readFile(kSettings, content, platform::kAnySize));
      EXPECT_TRUE(content == kDamaged || isKept(kDamaged)) << described(*in_, call);
      if (HasFailure()) return;
    }
  }
}

// The save makes the folder.
TEST(SettingsFaultsMissingFolder, IsThereWithTheFileOrNotAtAll) {
  const TempFolder home;
  const ScopedProfile profile(home.path());
  constexpr int kMoreThanAnySave = 60;
  int made = 0;
  for (const Fault fault :
       {Fault::Fails, Fault::FailsForGood, Fault::EndsBefore, Fault::EndsAfter}) {
    for (int call = 0; call < kMoreThanAnySave; ++call) {
      StandIn in;
      in.model.makeFolder("/");
      in.faulty.plan(call, fault);
      const bool isSaved = HotkeyConfig().Save(kSettingsName, kNewTime) && !in.faulty.hasEnded();
      const std::string what = described(in, call);
      if (in.faulty.faulty() == "createFolder") ++made;
      const bool hasEnded = in.faulty.hasEnded();
      in.model.endPrograms();
      in.faulty.plan(-1, Fault::None);
      HotkeyConfig next;
      EXPECT_TRUE(next.Load(kSettingsName) == isSaved || hasEnded) << what;
      EXPECT_TRUE(next.Save(kSettingsName, kNewTime)) << what;
      EXPECT_EQ(in.model.listing("/folder"), std::string(kSettings) + "\n") << what;
      EXPECT_TRUE(next.Load(kSettingsName)) << what;
    }
  }
  EXPECT_EQ(made, 4) << "each fault once";
}

TEST(SettingsFaultsMissingFolder, IsOnTheDiskWithTheFile) {
  const TempFolder home;
  const ScopedProfile profile(home.path());
  for (unsigned way = 0; way < kPowerLosses; ++way) {
    StandIn in;
    in.model.makeFolder("/");
    in.faulty.plan(-1, Fault::None);
    ASSERT_TRUE(HotkeyConfig().Save(kSettingsName, kNewTime));
    in.model.losePower(way);
    EXPECT_TRUE(platform::folderExists("/folder")) << way;
    EXPECT_TRUE(HotkeyConfig().Load(kSettingsName)) << way;
  }
}

INSTANTIATE_TEST_SUITE_P(, SettingsFaults, testing::ValuesIn(kPlaces),
                         [](const auto& place) { return std::string(place.param.name); });

}  // namespace
}  // namespace brennet::test
