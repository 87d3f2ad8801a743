#pragma once

#include "gameside/dota7/Dota7Values.h"
#include "ui/history/ChangeMarks.h"

class QLineEdit;
class QWidget;

namespace brennet {

class Dota7KeyFields;
class Dota7KeyInfoManager;
class EditHistory;

// Marks controls for values of DotA 7. Pages name their controls here; the marks stay when this
// object is gone.
class Dota7Marks {
 public:
  // All outlive the marks.
  Dota7Marks(ChangeMarks& marks, EditHistory& history, Dota7KeyInfoManager& manager)
      : marks_(&marks), history_(&history), manager_(&manager) {}

  void add(QWidget& box, const Dota7Switch& row) const;
  void add(QLineEdit& field, const Dota7Phrase& row) const;
  // All fields for keys of a page, with their menus.
  void addKeys(Dota7KeyFields& fields) const;

  // To be called when the fields show the keys of another cast mode.
  void refresh() const { marks_->refresh(); }

 private:
  void addKey(QLineEdit& field, const Dota7KeyField& row, Dota7KeyFields& fields) const;

  ChangeMarks* marks_;
  EditHistory* history_;
  Dota7KeyInfoManager* manager_;
};

}  // namespace brennet
