#include "ui/chat/PhraseMenu.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>

namespace brennet {
namespace {

bool canPaste(const QLineEdit& /*field*/) {
  return !QGuiApplication::clipboard()->text().isEmpty();
}
bool hasText(const QLineEdit& field) {
  return !field.text().isEmpty();
}

struct Entry {
  const char* text;
  void (*act)(QLineEdit& field);
  bool (*isPossible)(const QLineEdit& field);
  QKeySequence::StandardKey key;
  bool opensGroup = false;  // a separator is above it
};

// Methods of a line edit as plain functions.
template <auto isPossible>
bool asked(const QLineEdit& field) {
  return (field.*isPossible)();
}
template <auto act>
void done(QLineEdit& field) {
  (field.*act)();
}

// The texts are Qt's, so that Qt's own catalogue serves as well as this component's.
constexpr Entry kEntries[] = {
    {QT_TRANSLATE_NOOP("QLineEdit", "&Undo"), done<&QLineEdit::undo>,
     asked<&QLineEdit::isUndoAvailable>, QKeySequence::Undo},
    {QT_TRANSLATE_NOOP("QLineEdit", "&Redo"), done<&QLineEdit::redo>,
     asked<&QLineEdit::isRedoAvailable>, QKeySequence::Redo},
    {QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"), done<&QLineEdit::cut>,
     asked<&QLineEdit::hasSelectedText>, QKeySequence::Cut, true},
    {QT_TRANSLATE_NOOP("QLineEdit", "&Copy"), done<&QLineEdit::copy>,
     asked<&QLineEdit::hasSelectedText>, QKeySequence::Copy},
    {QT_TRANSLATE_NOOP("QLineEdit", "&Paste"), done<&QLineEdit::paste>, canPaste,
     QKeySequence::Paste},
    {QT_TRANSLATE_NOOP("QLineEdit", "Delete"), done<&QLineEdit::del>,
     asked<&QLineEdit::hasSelectedText>, QKeySequence::UnknownKey},
    {QT_TRANSLATE_NOOP("QLineEdit", "Select All"), done<&QLineEdit::selectAll>, hasText,
     QKeySequence::SelectAll, true},
};

void showMenu(QLineEdit& field, QPoint place) {
  auto* const menu = new QMenu(&field);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const Entry& entry : kEntries) {
    if (entry.opensGroup) menu->addSeparator();
    QAction* const action = menu->addAction(QCoreApplication::translate("QLineEdit", entry.text));
    action->setShortcut(entry.key);
    action->setShortcutVisibleInContextMenu(true);
    action->setEnabled(entry.isPossible(field));
    QObject::connect(action, &QAction::triggered, &field,
                     [&field, act = entry.act] { act(field); });
  }
  menu->popup(place);
}

}  // namespace

void offerPhraseMenu(QLineEdit& field) {
  field.setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(&field, &QWidget::customContextMenuRequested, &field,
                   [&field](QPoint place) { showMenu(field, field.mapToGlobal(place)); });
}

}  // namespace brennet
