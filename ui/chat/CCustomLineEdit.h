#pragma once

#include <QLineEdit>

// A line edit that takes the text of an item dropped on it from one of Qt's item views, instead of
// what it held. Of several items it takes the last one's.
// In no namespace: style sheets know it by this name.
class CCustomLineEdit : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
};
