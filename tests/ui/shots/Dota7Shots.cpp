// The windows of the DotA 7 mode.

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "tests/ui/shots/Shots.h"
#include "ui/pages/CDotA7BasicSetting.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"
#include "ui/window/StyleSheet.h"

namespace brennet::shots {
namespace {

Dota7KeyInfoManager& manager() {
  static Dota7KeyInfoManager manager;
  return manager;
}

std::unique_ptr<QWidget> makePage() {
  return inDialog([](QWidget* parent) { return new CDotA7BasicSetting(manager(), parent); });
}

std::unique_ptr<QWidget> makeChat() {
  auto window = std::make_unique<Dota7ChatKeySettingWidget>(manager(), nullptr);
  loadStyleSheet(*window, QStringLiteral(":/skin/war3key.qss"));
  window->resize(window->sizeHint());
  return window;
}

}  // namespace

QList<Shot> dota7Shots() {
  return {{QStringLiteral("dota7"), makePage}, {QStringLiteral("dota7-chat"), makeChat}};
}

}  // namespace brennet::shots
