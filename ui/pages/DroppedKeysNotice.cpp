#include "ui/pages/DroppedKeysNotice.h"

#include <QCoreApplication>
#include <QStringList>

#include "ui/capture/SlotText.h"
#include "ui/window/CNoticeStrip.h"

namespace brennet {
namespace {

constexpr int kMostKeys = 4;

QString words(const char* text) {
  return QCoreApplication::translate("DroppedKeysNotice", text);
}

}  // namespace

CNoticeStrip* newDroppedKeysNotice(const LoadReport& report, int currentScheme, QWidget* parent) {
  QStringList keys;
  for (const DroppedKey& dropped : report.droppedKeys) {
    keys += droppedKeyText(dropped, currentScheme);
  }
  if (keys.isEmpty()) return nullptr;
  QStringList told = keys.mid(0, kMostKeys);
  if (keys.size() > kMostKeys) told += QStringLiteral("...");
  const QString list = listText(told);
  const char* const one =
      QT_TRANSLATE_NOOP("DroppedKeysNotice", "您的设置中有 1 个按键无法使用：%1");
  const char* const many =
      QT_TRANSLATE_NOOP("DroppedKeysNotice", "您的设置中有 %1 个按键无法使用：%2");
  const QString text =
      keys.size() == 1 ? words(one).arg(list) : words(many).arg(QString::number(keys.size()), list);
  return new CNoticeStrip(text, keys.join(QLatin1Char('\n')), parent);
}

}  // namespace brennet
