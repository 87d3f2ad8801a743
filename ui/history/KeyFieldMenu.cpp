#include "ui/history/KeyFieldMenu.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>

#include "ui/window/EventGuard.h"

namespace brennet {
namespace {

QString words(const char* text) {
  return QCoreApplication::translate("KeyFieldMenu", text);
}

// A menu takes & for the mark of an access key.
QString plain(QString text) {
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString putBackText(const std::optional<QString>& was, const QString& refusal) {
  if (!was) return words(QT_TRANSLATE_NOOP("KeyFieldMenu", "恢复原按键"));
  if (refusal.isEmpty()) return words(QT_TRANSLATE_NOOP("KeyFieldMenu", "恢复：%1")).arg(*was);
  return words(QT_TRANSLATE_NOOP("KeyFieldMenu", "恢复：%1（%2）")).arg(*was, refusal);
}

void addEntry(QMenu& menu, const QString& text, bool isPossible, const std::function<void()>& act) {
  QAction* const entry = menu.addAction(plain(text));
  entry->setEnabled(isPossible);
  QObject::connect(entry, &QAction::triggered, menu.parent(), [act] { guarded(act); });
}

}  // namespace

void showMenu(const KeyFieldMenu& menu, QLineEdit& field, QPoint place) {
  auto* const shown = new QMenu(&field);
  shown->setAttribute(Qt::WA_DeleteOnClose);
  const std::optional<QString> was = menu.was();
  const QString refusal = was ? menu.refusal() : QString();
  addEntry(*shown, putBackText(was, refusal), was && refusal.isEmpty(), menu.putBack);
  addEntry(*shown, words(QT_TRANSLATE_NOOP("KeyFieldMenu", "清除")), !field.text().isEmpty(),
           menu.clear);
  shown->popup(place);
}

}  // namespace brennet
