// The windows of the DotA 7 mode. They show what the registry holds, which is nothing here: so some
// keys and phrases are put into the fields.

#include <QLineEdit>

#include "gameside/Dota7KeyInfoManager.h"
#include "tests/ui/shots/Shots.h"
#include "ui/StyleSheet.h"
#include "ui/pages/CDotA7BasicSetting.h"
#include "ui/pages/Dota7ChatKeySettingWidget.h"

namespace brennet::shots {
namespace {

Dota7KeyInfoManager& manager() {
  static Dota7KeyInfoManager manager;
  return manager;
}

struct Example {
  const char* field;
  const char16_t* text;
};
constexpr Example kExamples[] = {
    {"edt_HMoveKeyC", u"M"},          {"edt_HStopKey", u"S"},
    {"edt_HAttackKeyC", u"A"},        {"edt_HSelectCourierKey", u"CTRL + PageDown"},
    {"edt_ItemKeyC0", u"ALT + Q"},    {"edtOrderSkill_2", u"Q"},
    {"edtHACSkill_3", u"W"},          {"edt_SQuickChatString0", u"集合，准备推塔"},
    {"edt_HQuickChatHot0Key", u"F5"}, {"edt_SOnStartString0", u"祝大家玩得开心"},
};

void fill(QWidget& window) {
  for (const Example& example : kExamples) {
    if (auto* const field = window.findChild<QLineEdit*>(QLatin1String(example.field))) {
      field->setText(QString::fromUtf16(example.text));
    }
  }
}

std::unique_ptr<QWidget> makePage() {
  auto window = inDialog([](QWidget* parent) { return new CDotA7BasicSetting(manager(), parent); });
  fill(*window);
  return window;
}

std::unique_ptr<QWidget> makeChat() {
  auto window = std::make_unique<Dota7ChatKeySettingWidget>(manager(), nullptr);
  loadStyleSheet(*window, QStringLiteral(":/skin/war3key.qss"));
  window->resize(window->sizeHint());
  fill(*window);
  return window;
}

}  // namespace

QList<Shot> dota7Shots() {
  return {{QStringLiteral("dota7"), makePage}, {QStringLiteral("dota7-chat"), makeChat}};
}

}  // namespace brennet::shots
