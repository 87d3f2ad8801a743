// The built library on the real file system: each system call that a save makes fails, or is the
// last one of its process. Each save runs in a process of its own.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <set>
#include <string>

#include "brennet/IBrennet.h"
#include "tests/faults/FailingCalls_posix.h"
#include "tests/support/FaultPoints.h"
#include "tests/support/SharedLibrary.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {
namespace {

IBrennet& library() {
  static const auto get =
      reinterpret_cast<GetBrennetPtrFunction>(functionOf(BRENNET_LIBRARY, "GetBrennetPtr"));
  return *get();
}

constexpr char kSettings[] =
    "<KeyInfo enable=\"1\" index=\"0\"><LastSaveTime>1</LastSaveTime></KeyInfo>";
constexpr char kPreferences[] = "[Mine]\r\nkept=1\r\n\r\n[Gameplay]\r\ncustomkeys=0\r\n\r\n";
constexpr std::uint32_t kNewTime = 2;

// Where the settings file is. The folder belongs to the user of the process.
struct Place {
  const char* name;
  void (*prepare)(const std::filesystem::path& folder);
};

std::filesystem::path settingsIn(const std::filesystem::path& folder) {
  return folder / "settings" / "KeyInfo.xml";
}

const Place kPlaces[] = {
    {"Usual", [](const std::filesystem::path&) {}},
    {"NothingNew",
     [](const std::filesystem::path& folder) { chmod((folder / "settings").c_str(), 0555); }},
    {"TwoNames",
     [](const std::filesystem::path& folder) {
       std::filesystem::create_hard_link(settingsIn(folder), folder / "second.xml");
     }},
    {"ALink",
     [](const std::filesystem::path& folder) {
       std::filesystem::rename(settingsIn(folder), folder / "elsewhere.xml");
       std::filesystem::create_symlink(folder / "elsewhere.xml", settingsIn(folder));
     }},
    {"PrivateFile",
     [](const std::filesystem::path& folder) { chmod(settingsIn(folder).c_str(), 0600); }},
};

class LibraryFaults : public testing::TestWithParam<Place> {
 protected:
  // The files of a player, who is not the superuser.
  class Files {
   public:
    Files() {
      const std::filesystem::path preferences = preferencesPath();
      std::filesystem::create_directories(preferences.parent_path());
      std::filesystem::create_directory(folder_ / "settings");
      writeBytes(settingsIn(folder_.path()), kSettings);
      writeBytes(preferences, kPreferences);
      GetParam().prepare(folder_.path());
      if (geteuid() != 0) return;
      EXPECT_EQ(lchown(folder_.path().c_str(), kNobody, kNobody), 0);
      for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path())) {
        EXPECT_EQ(lchown(entry.path().c_str(), kNobody, kNobody), 0);
      }
    }
    ~Files() { chmod((folder_ / "settings").c_str(), 0755); }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    [[nodiscard]] std::filesystem::path preferencesPath() const {
      return folder_.path() / "Documents" / "Warcraft III" / "War3Preferences.txt";
    }
    [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }
    [[nodiscard]] std::string settings() const { return readBytes(settingsIn(path())); }
    [[nodiscard]] std::string preferences() const { return readBytes(preferencesPath()); }
    // Everything in the folder, one name a line.
    [[nodiscard]] std::string listing() const {
      std::set<std::string> names;
      for (const auto& entry : std::filesystem::recursive_directory_iterator(path())) {
        names.insert(std::filesystem::relative(entry.path(), path()).string() + "\n");
      }
      std::string text;
      for (const std::string& name : names) text += name;
      return text;
    }

   private:
    TempFolder folder_;
  };

  // What a process answers when it ends.
  enum Answer { kSaved = 1, kLoaded = 2, kEnabled = 4 };

  // Runs `operation`, which returns an answer, in a process of its own, with the user's rights.
  // Returns -1 if a signal ended it.
  template <class Operation>
  static int run(const Files& files, Operation operation) {
    library();  // loaded here, because the other user may not be able to read it
    const pid_t child = fork();
    if (child == 0) {
      if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) _exit(64);
      setenv("HOME", files.path().c_str(), 1);
      setenv("TMPDIR", files.path().c_str(), 1);
      _exit(operation());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  // Loads, and saves with the fault.
  static bool saveHere(const Files& files, const FailingCall& fault) {
    library().LoadSettings(settingsIn(files.path()).wstring().c_str());
    failingCall = fault;
    const bool saved = library().SetEnabled(false, kNewTime);
    failingCall.number = -1;
    return saved;
  }

  static int save(const Files& files, const FailingCall& fault) {
    return run(files, [&] { return saveHere(files, fault) ? int{kSaved} : 0; });
  }

  // Loads, and answers what was found; then saves twice.
  static int runCleanSession(const Files& files) {
    return run(files, [&] {
      const bool isLoaded = library().LoadSettings(settingsIn(files.path()).wstring().c_str());
      const bool isEnabled = library().GetLastSaveTime() != kNewTime;
      const bool isSaved = library().SetEnabled(!isEnabled, library().GetLastSaveTime()) &&
                           library().SetEnabled(isEnabled, library().GetLastSaveTime());
      return (isLoaded ? kLoaded : 0) | (isEnabled ? kEnabled : 0) | (isSaved ? kSaved : 0);
    });
  }

  // How many calls a save makes.
  static long countCalls(const Files& files) {
    FailingCall none;
    none.number = kMoreThanAnySave;
    const int calls = run(files, [&] {
      static_cast<void>(saveHere(files, none));
      return failingCall.calls;
    });
    EXPECT_GT(calls, 10);
    EXPECT_LT(calls, kMoreThanAnySave);
    return calls;
  }

  // Makes every call faulty, one at a time, or a sample of them.
  static void sweep(FailingCall fault) {
    const Files untouched;
    const long calls = countCalls(untouched);
    static_cast<void>(runCleanSession(untouched));
    for (const long call : faultPoints(calls, kSample)) {
      fault.number = static_cast<int>(call);
      const Files files;
      const int told = save(files, fault);
      const int found = runCleanSession(files);
      const std::string what = "call " + std::to_string(fault.number);
      EXPECT_NE(found & kLoaded, 0) << what;
      EXPECT_NE(found & kSaved, 0) << what;
      if (told >= 0) {
        EXPECT_EQ((found & kEnabled) == 0, (told & kSaved) != 0) << what;
      }
      EXPECT_NE(files.preferences().find("kept=1"), std::string::npos) << what;
      EXPECT_EQ(files.listing(), untouched.listing()) << what;
      if (HasFailure()) break;
    }
  }

  static constexpr uid_t kNobody = 65534;
  static constexpr int kMoreThanAnySave = 200;  // the exit status of a process has eight bits
  static constexpr long kSample = 9;
};

TEST_P(LibraryFaults, OfOneCallLeaveItWhole) {
  for (const int error : {EIO, EACCES, ENOSPC, EAGAIN, EMFILE}) {
    sweep({.kind = FailingCall::Kind::Fails, .error = error});
  }
}

TEST_P(LibraryFaults, OfAllCallsFromOneOnLeaveItWhole) {
  for (const int error : {EIO, ENOSPC}) {
    sweep({.kind = FailingCall::Kind::FailsForGood, .error = error});
  }
}

TEST_P(LibraryFaults, ThatEndTheProcessLeaveItWhole) {
  for (const auto kind : {FailingCall::Kind::EndsBefore, FailingCall::Kind::EndsInside,
                          FailingCall::Kind::EndsAfter}) {
    sweep({.kind = kind});
  }
}

INSTANTIATE_TEST_SUITE_P(, LibraryFaults, testing::ValuesIn(kPlaces),
                         [](const auto& place) { return std::string(place.param.name); });

}  // namespace
}  // namespace brennet::test
