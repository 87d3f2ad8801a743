// What would change if another setting group were taken over.

#include <QCoreApplication>

#include "model/RecommendedScheme.h"
#include "model/SchemeTransfer.h"
#include "tests/ui/shots/Shots.h"
#include "ui/pages/SchemeTransferWindow.h"
#include "ui/window/StyleSheet.h"

namespace brennet::shots {
namespace {

// Some of everything, and two values that are refused.
HotkeyScheme source() {
  HotkeyScheme scheme;
  recommend(scheme);
  scheme.HeroSkillKey[8] = KeyWord('Q', KeyWord::kAlt);
  scheme.HeroSkillAutocast[8] = true;
  scheme.NumComboKeyIndex = 0;
  scheme.ShowFBlood = KeyWord('Q', KeyWord::kAlt);
  scheme.QuickChat[0] = u"gl hf";
  scheme.HideUI = 1;
  return scheme;
}

std::unique_ptr<QWidget> makePreview() {
  HotkeyScheme current;
  current.HeroSkillKey[0] = KeyWord('Q', 0);
  current.ShowFBlood = KeyWord(0xDB, 0);
  const QString title = QCoreApplication::translate("CHotkeySettingDlg", "复制自...");
  const QString group = QCoreApplication::translate("CHotkeySettingDlg", "setting group 2");
  auto window = std::make_unique<SchemeTransferWindow>(
      title.chopped(3), current, std::vector<SchemeOffer>{{group, transferOf(current, source())}},
      nullptr);
  loadStyleSheet(*window, QStringLiteral(":/skin/war3key.qss"));
  return window;
}

}  // namespace

QList<Shot> transferShots() {
  return {{QStringLiteral("transfer"), makePreview}};
}

}  // namespace brennet::shots
