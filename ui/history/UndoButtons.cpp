#include "ui/history/UndoButtons.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>

#include <utility>

#include "ui/history/StepText.h"
#include "ui/window/EventGuard.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

// What may change the settings without input: a screen reader clicks, a field loses the keyboard.
bool mayFollowChange(QEvent::Type type) {
  return isInput(type) || type == QEvent::UpdateRequest || type == QEvent::FocusOut;
}

bool isModifierPress(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr;
}

void describe(QPushButton& button, const EditStep* step) {
  const QString text = step != nullptr ? stepText(*step) : QString();
  button.setEnabled(step != nullptr);
  button.setToolTip(plainToolTip(text));
  button.setAccessibleDescription(text);
}

}  // namespace

UndoButtons::UndoButtons(EditHistory& history, QPushButton& undo, QPushButton& redo, Show show,
                         Changed changed)
    : history_(history),
      undo_(undo),
      redo_(redo),
      show_(std::move(show)),
      changed_(std::move(changed)) {
  connect(&undo_, &QPushButton::clicked, this, [this] { step(&EditHistory::undo); });
  connect(&redo_, &QPushButton::clicked, this, [this] { step(&EditHistory::redo); });
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, [this] {
    if (!isModifierDown_) guarded([this] { note(); });
  });
  refresh();
  QCoreApplication::instance()->installEventFilter(this);
}

void UndoButtons::note(const QString& title) {
  if (!history_.note(title)) return;
  refresh();
  changed_();
}

// Native windows get the same input before their widgets do.
bool UndoButtons::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (!watched->isWidgetType() || !mayFollowChange(type)) return false;
  guarded([&] {
    if (isInput(type) && !isModifierDown_) note();
    // Nothing but another key or the mouse, or the loss of the keyboard, ends a combination.
    if (type != QEvent::UpdateRequest) isModifierDown_ = isModifierPress(*event);
    if (!soon_.isActive()) soon_.start();
  });
  return false;
}

void UndoButtons::step(const EditStep* (EditHistory::*go)()) {
  isModifierDown_ = false;
  const EditStep* const taken = (history_.*go)();
  if (taken != nullptr) show_(*taken);
  refresh();
  changed_();
}

// A button that cannot be pressed any more passes the keyboard on to the other one, before Qt gives
// it to whatever comes next.
void UndoButtons::refresh() {
  const EditStep* const undoable = history_.undoable();
  const EditStep* const redoable = history_.redoable();
  if (undo_.hasFocus() && undoable == nullptr && redoable != nullptr) {
    describe(redo_, redoable);
    redo_.setFocus();
  }
  if (redo_.hasFocus() && redoable == nullptr && undoable != nullptr) {
    describe(undo_, undoable);
    undo_.setFocus();
  }
  describe(undo_, undoable);
  describe(redo_, redoable);
}

}  // namespace brennet
