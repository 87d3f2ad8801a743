// The quick-chat dialog and the advanced page, with keys and phrases of all lengths.

#include "tests/ui/shots/Shots.h"
#include "ui/pages/CAdvancedSettingWidget.h"
#include "ui/pages/ChatKeySettingWidget.h"
#include "ui/window/StyleSheet.h"

namespace brennet::shots {
namespace {

// The windows keep a reference to it.
HotkeyConfig& settings() {
  static HotkeyConfig config;
  HotkeyScheme& scheme = *config.editableScheme();
  scheme.NumComboKeyIndex = 1;
  scheme.HotkeyContrl = KeyWord(0x77, KeyWord::kCtrl | KeyWord::kAlt);
  scheme.WinLockMouse = KeyWord('L', KeyWord::kAlt);
  scheme.QuickChatKey = KeyWord(0x90, KeyWord::kCtrl | KeyWord::kAlt);
  scheme.QuickChat = {u"上路消失，请小心",
                      u"大家集合",
                      u"",
                      u"B, 他们全部在中路",
                      std::u16string(kPhraseUnits, u'字'),
                      u"The enemy is at the rune, do not go there",
                      u"推塔",
                      u"好"};
  return config;
}

std::unique_ptr<QWidget> makeDialog() {
  auto dialog = std::make_unique<ChatKeySettingWidget>(settings(), nullptr);
  loadStyleSheet(*dialog, QStringLiteral(":/skin/war3key.qss"));
  return dialog;
}

std::unique_ptr<QWidget> makePage() {
  return inDialog([](QWidget* parent) { return new CAdvancedSettingWidget(settings(), parent); });
}

}  // namespace

QList<Shot> chatShots() {
  return {{QStringLiteral("quick-chat"), makeDialog}, {QStringLiteral("advanced"), makePage}};
}

}  // namespace brennet::shots
