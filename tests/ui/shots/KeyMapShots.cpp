// The map of the keys: in both modes, and one of its layers.

#include <QRadioButton>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "model/RecommendedScheme.h"
#include "tests/ui/shots/Shots.h"
#include "ui/keymap/Dota7KeyMap.h"
#include "ui/keymap/SchemeKeyMap.h"
#include "ui/pages/KeyMapWindow.h"
#include "ui/window/StyleSheet.h"

namespace brennet::shots {
namespace {

// Something of every kind.
HotkeyScheme scheme() {
  HotkeyScheme scheme;
  recommend(scheme);
  scheme.HeroSkillKey[8] = KeyWord('Q', KeyWord::kAlt);
  scheme.MouseKey[0] = KeyWord('T', 0);
  scheme.HotKey[0] = KeyRemap(KeyWord(0xC0, 0), KeyWord(0x70, 0));
  scheme.ComboKey = {KeyWord('J', 0), KeyWord('K', 0), kNoKey, KeyWord(0x71, 0)};
  scheme.ShowFBlood = KeyWord(0xDB, 0);
  scheme.SecretaryKey[0] = KeyWord('O', KeyWord::kCtrl);
  return scheme;
}

std::unique_ptr<QWidget> makeWindow(KeyMap map, bool isDota7, const char* layer) {
  auto window = std::make_unique<KeyMapWindow>(nullptr);
  loadStyleSheet(*window, QStringLiteral(":/skin/war3key.qss"));
  window->setMap(std::move(map), isDota7);
  window->findChild<QRadioButton*>(QLatin1String(layer))->click();
  window->resize(window->sizeHint());
  return window;
}

std::unique_ptr<QWidget> makeDota7() {
  Dota7KeyInfoManager manager;
  manager.refresh();
  return makeWindow(keyMapOf(manager.settings()), true, "optPlain");
}

}  // namespace

QList<Shot> keyMapShots() {
  const auto ofScheme = [](const char* layer) {
    return [layer] { return makeWindow(keyMapOf(scheme()), false, layer); };
  };
  return {{QStringLiteral("key-map"), ofScheme("optPlain")},
          {QStringLiteral("key-map-ctrl"), ofScheme("optCtrl")},
          {QStringLiteral("key-map-alt"), ofScheme("optAlt")},
          {QStringLiteral("key-map-dota7"), makeDota7}};
}

}  // namespace brennet::shots
