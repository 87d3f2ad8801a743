// A player whose client is killed in the middle of the DotA 7 dialog. The argument says after how
// many steps.

#include <windows.h>

#include <cstdlib>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "tests/gameside/dota7/Dota7Player_win.h"

namespace {

using namespace brennet;

// The last step confirms everything.
void play(Dota7KeyInfoManager& manager, int steps) {
  Dota7Settings& settings = manager.settings();
  manager.beginRun();
  settings.load();
  const Dota7KeyField& stop = *findDota7KeyField(u"edt_HStopKey");
  if (steps > 0) static_cast<void>(settings.storeKey(stop, {'T', Dota7Key::kNoModifier}));
  if (steps > 1) settings.setOn(*findDota7Switch(u"chk_SLegacyKeys"), true);
  if (steps > 2) static_cast<void>(settings.storeKey(stop, {'U', Dota7Key::kAlt}));
  if (steps > 3) settings.setPhrase(*findDota7Phrase(u"edt_SOnStartString0"), u"new");
  if (steps > 4) manager.acceptChanges();
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  Dota7KeyInfoManager manager;
  play(manager, std::atoi(arguments[1]));
  TerminateProcess(GetCurrentProcess(), test::kPlayerKilled);
}
