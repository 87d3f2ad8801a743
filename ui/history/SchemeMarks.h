#pragma once

#include "model/KeySlot.h"
#include "model/SchemeDifferences.h"
#include "ui/history/ChangeMarks.h"

class QLineEdit;
class QWidget;

namespace brennet {

class CaptureFields;
class EditHistory;
class HotkeyConfig;

// Marks controls for values of the current scheme. Pages name their controls here; the marks stay
// when this object is gone.
class SchemeMarks {
 public:
  // All outlive the marks.
  SchemeMarks(ChangeMarks& marks, const EditHistory& history, const HotkeyConfig& config)
      : marks_(&marks), history_(&history), config_(&config) {}

  // A control that shows one value.
  void add(QWidget& control, SettingPart part) const;
  // A box for one of several choices, which is checked if `isChosen` says so of a scheme.
  void addChoice(QWidget& box, std::function<bool(const HotkeyScheme&)> isChosen) const;
  // A field with words; `textIn` says what it shows for a scheme.
  void addText(QLineEdit& field, std::function<QString(const HotkeyScheme&)> textIn) const;
  // All fields for keys of a page, with their menus.
  void addKeys(CaptureFields& fields) const;

 private:
  void addKey(QLineEdit& field, KeySlot slot, CaptureFields& fields) const;

  ChangeMarks* marks_;
  const EditHistory* history_;
  const HotkeyConfig* config_;
};

}  // namespace brennet
