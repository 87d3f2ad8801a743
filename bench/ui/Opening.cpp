#include "bench/ui/Opening.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "model/RecommendedScheme.h"
#include "ui/CHotkeySettingDlg.h"

namespace brennet::bench {

HotkeyConfig& settings() {
  static HotkeyConfig config;
  recommend(*config.editableScheme(0));
  config.editableScheme(1)->HeroSkillKey.fill(KeyWord(0x91, KeyWord::kCtrl));
  return config;
}

Dota7KeyInfoManager& manager() {
  static Dota7KeyInfoManager manager;
  return manager;
}

void paint() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

void openTwice() {
  using Clock = std::chrono::steady_clock;
  for (int time = 0; time < 2; ++time) {
    const Clock::time_point begin = Clock::now();
    CHotkeySettingDlg dialog(settings(), manager());
    dialog.show();
    paint();
    std::printf("%.9f\n", std::chrono::duration<double>(Clock::now() - begin).count());
  }
}

}  // namespace brennet::bench
