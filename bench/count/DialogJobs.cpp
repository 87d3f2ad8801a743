// The settings dialog, opened a second time in its process and then used.

#include "bench/count/Count.h"
#include "bench/count/Jobs.h"
#include "bench/ui/Opening.h"
#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/HotkeyConfig.h"
#include "ui/CHotkeySettingDlg.h"

#include <optional>

namespace brennet::bench {
namespace {

void openOnce() {
  CHotkeySettingDlg dialog(settings(), manager());
  dialog.show();
  paint();
}

}  // namespace

void countDialog() {
  openOnce();
  std::optional<CHotkeySettingDlg> dialog;
  {
    const Count count("make the dialog");
    dialog.emplace(settings(), manager());
  }
  {
    const Count count("polish the dialog");
    dialog->show();
  }
  {
    const Count count("paint the dialog");
    paint();
  }
  int scheme = 0;
  countAgain("switch schemes", [&] {
    dialog->onCurrentIndexChanged_HotkeySetting(++scheme % 2);
    paint();
  });
}

}  // namespace brennet::bench
