#pragma once

#include <QLineEdit>

// A line edit that takes the text of an item that is dropped on it from one of Qt's item views, in
// the place of what it held. Of several items it takes the last one's.
// In no namespace: style sheets know it by this name.
class CCustomLineEdit : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
};
