#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

#include "ui/history/EditHistory.h"

class QPushButton;

namespace brennet {

// The buttons of a window that undo what the player did and do it again. Their tool tips say what
// that would be.
//
// A step is what one press, click or turn of the wheel has changed: the changes are noted when the
// next one arrives, before anything handles it, and when the application has nothing else to do.
// While Ctrl or Alt is held in a key field, which may store it for a moment, the step goes on.
class UndoButtons : public QObject {
 public:
  // Shows the settings after `step` was undone or done again; may run an event loop.
  using Show = std::function<void(const EditStep& step)>;
  // Is told after each step, undone ones included.
  using Changed = std::function<void()>;

  // All outlive this object.
  UndoButtons(EditHistory& history, QPushButton& undo, QPushButton& redo, Show show,
              Changed changed);

  // Notes what has changed until now as a step of that title.
  void note(const QString& title = {});

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void step(const EditStep* (EditHistory::*go)());
  void refresh();

  EditHistory& history_;
  QPushButton& undo_;
  QPushButton& redo_;
  Show show_;
  Changed changed_;
  // Due behind what handles an event. A window that it opens has a loop of its own, which notes
  // what has changed until then.
  QTimer soon_;
  bool isModifierDown_ = false;
};

}  // namespace brennet
