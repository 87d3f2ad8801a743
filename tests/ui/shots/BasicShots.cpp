// The basic pages and the Orrery window, with keys of all lengths.

#include "model/FixedKeys.h"
#include "model/RecommendedScheme.h"
#include "tests/ui/shots/Shots.h"
#include "ui/pages/CBasicSetting7Widget.h"
#include "ui/pages/CBasicSettingWidget.h"
#include "ui/pages/COrrerySettingDlg.h"

namespace brennet::shots {
namespace {

// The windows keep a reference to it.
HotkeyConfig& settings() {
  static HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  recommend(scheme);
  scheme.HeroSkillKey[9] = KeyWord(0x91, KeyWord::kCtrl | KeyWord::kAlt);  // a long text
  scheme.HeroSkillKey[10] = kNoKey;
  for (std::size_t i = 0; i < 4; ++i) scheme.HeroSkillAutocast[i] = true;
  scheme.ItemAutocast[0] = true;
  scheme.HotKey[0] = KeyRemap(KeyWord('T', 0), KeyWord('B', KeyWord::kCtrl));
  scheme.ComboKey.Key_A = KeyWord('G', 0);
  scheme.ComboKey.Key_B = KeyWord('H', 0);
  scheme.ComboKey.Key_D = KeyWord('P', 0);
  scheme.MouseKey[0] = KeyWord('Y', 0);
  scheme.SecretaryKey[0] = KeyWord(0x24, KeyWord::kCtrl);
  scheme.ShowFBlood = KeyWord(0xDB, 0);
  scheme.WinLockMouse = KeyWord('L', KeyWord::kAlt);
  scheme.LockMouseFlag = 1;
  scheme.ViewNoDragFlag = 1;
  return config;
}

template <typename Page>
std::unique_ptr<QWidget> makePage() {
  return inDialog([](QWidget* parent) { return new Page(settings(), parent); });
}

// The page after it refused a preset, because fields hold two of its keys.
std::unique_ptr<QWidget> makeRefusal() {
  auto window = makePage<CBasicSetting7Widget>();
  HotkeyScheme& scheme = *settings().editableScheme();
  scheme.HeroSkillKey[8] = kItemPresetKeys[1][2];
  scheme.ShowFBlood = kItemPresetKeys[1][3];
  auto* const page = window->findChild<CBasicSetting7Widget*>();
  page->showSettings();
  page->onToggled_GroupKey2(true);
  return window;
}

}  // namespace

QList<Shot> basicShots() {
  return {{QStringLiteral("basic"), makePage<CBasicSetting7Widget>},
          {QStringLiteral("basic-older"), makePage<CBasicSettingWidget>},
          {QStringLiteral("basic-refusal"), makeRefusal},
          {QStringLiteral("orrery"), [] { return std::make_unique<COrrerySettingDlg>(); }}};
}

}  // namespace brennet::shots
