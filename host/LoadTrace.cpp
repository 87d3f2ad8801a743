#include "host/LoadTrace.h"

#include <QMessageLogger>

#include <string>

#include "keys/KeyWordText.h"

namespace brennet {
namespace {

using Reason = KeyConflict::Reason;

constexpr int kLongestText = 24;  // longer than any number of a key

QString nameOf(KeySlot slot) {
  return QString::fromStdString(keyName(slot));
}

QString textOf(KeyWord key) {
  std::u16string text;
  if (formatKeyWord(key, text)) return QString::fromStdU16String(text);
  return QStringLiteral("key %1").arg(key.raw());
}

QString reasonOf(const DroppedKey& dropped) {
  if (!dropped.conflict) {
    QString text = QString::fromStdU16String(dropped.text).simplified();
    if (text.size() > kLongestText) text = text.left(kLongestText) + QStringLiteral("...");
    return QStringLiteral("\"%1\" is no key").arg(text);
  }
  const KeyConflict& conflict = *dropped.conflict;
  const QString key = textOf(dropped.key);
  const int number = conflict.holder.index + 1;
  switch (conflict.reason) {
    case Reason::CannotBeBound:
      break;
    case Reason::Held:
    case Reason::SentByItself:
      return QStringLiteral("%1 is %2").arg(key, nameOf(conflict.holder));
    case Reason::ItemPresetKey:
      return QStringLiteral("%1 is item %2 of item preset %3")
          .arg(key)
          .arg(number)
          .arg(conflict.choice + 1);
    case Reason::QuickChatSetKey:
      return QStringLiteral("%1 sends quick-chat phrase %2").arg(key).arg(number);
  }
  return QStringLiteral("%1 cannot be bound").arg(key);
}

}  // namespace

QStringList inWords(const LoadReport& report) {
  QStringList lines;
  for (const DroppedKey& dropped : report.droppedKeys) {
    lines += QStringLiteral("line %1, column %2: setting group %3, %4: %5")
                 .arg(dropped.position.line)
                 .arg(dropped.position.column)
                 .arg(dropped.scheme + 1)
                 .arg(nameOf(dropped.slot), reasonOf(dropped));
  }
  return lines;
}

void trace(const LoadReport& report) {
  for (const QString& line : inWords(report)) {
    // Not a stream: that writes when it is destroyed, where running out of memory is fatal.
    QMessageLogger(nullptr, 0, nullptr, kLoadCategory).debug("%s", qUtf8Printable(line));
  }
}

}  // namespace brennet
