#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

#include "ui/history/KeyFieldMenu.h"

class QLineEdit;
class QWidget;

namespace brennet {

// Marks the controls whose settings differ from what they were when the dialog opened: a gold
// corner, and a line in the tool tip that says what it was. Key fields get a menu to put that back.
//
// A mark is drawn over its control, so that it takes no room. GUI thread only.
class ChangeMarks : public QObject {
 public:
  // What a setting was when the dialog opened, in words; nothing if it is that now.
  using Was = std::function<std::optional<QString>()>;

  ChangeMarks() = default;

  // The controls outlive this object, and so does what `was` uses.
  void add(QWidget& control, Was was);
  // A field with words, whose mark follows each letter.
  void addText(QLineEdit& field, Was was);
  // A field for a key. Its own tool tip has to end with changeLine().
  void addKey(QLineEdit& field, KeyFieldMenu menu);

  // To be called when settings have changed.
  void refresh();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Row {
    QWidget* control;
    Was was;
    std::optional<KeyFieldMenu> menu;  // for keys
    QString ownToolTip, shownToolTip;  // of other controls
    QString ownDescription;            // for screen readers
    QString line;                      // what it was; empty where it is as it was

    [[nodiscard]] bool isMarked() const { return !line.isEmpty(); }
  };

  Row& addRow(QWidget& control, Was was);
  [[nodiscard]] Row* findRow(const QObject* control);
  void refresh(QWidget& control);
  static void refresh(Row& row);
  static void show(Row& row);
  bool handle(Row& row, QEvent& event);

  std::vector<Row> rows_;
};

}  // namespace brennet
