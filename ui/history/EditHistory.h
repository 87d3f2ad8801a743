#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "gameside/dota7/Dota7Settings.h"
#include "model/HotkeyConfig.h"
#include "ui/history/EditStep.h"

namespace brennet {

class Dota7KeyInfoManager;

// The steps of one run of the dialog, to be undone and done again. Steps are found by comparison,
// so that whatever changes the settings need not know of this. GUI thread only; everything throws
// std::bad_alloc.
class EditHistory {
 public:
  // The settings and the registry as they are now are what the first step starts from. Both outlive
  // this object, and the manager's run has begun.
  EditHistory(HotkeyConfig& config, Dota7KeyInfoManager& manager);

  // Makes a step of what has changed since the last one. Returns whether there was something that a
  // player can see; then nothing is left to be done again. What nobody can see, such as an empty
  // value in place of none, joins the last step, or the first one.
  bool note(const QString& title = {});

  // The steps that undo() and redo() would take next; null if there is none.
  [[nodiscard]] const EditStep* undoable() const;
  [[nodiscard]] const EditStep* redoable() const;

  // Undo the last step, or do the last undone one again, and return it; it belongs to this object
  // and is there until the next call. Null if there is none. If the registry refuses a change, the
  // step stays where it was, to be tried again.
  const EditStep* undo();
  const EditStep* redo();

  // The current scheme as it was when the run began; the defaults if there is none.
  [[nodiscard]] const HotkeyScheme& openingScheme() const;
  [[nodiscard]] bool openingEnable() const { return opening_.enable; }

  // The DotA 7 settings as they were before this run changed them, in the present cast mode. Read
  // when it is first asked for, and again after each step and forgetDota7().
  [[nodiscard]] const Dota7Settings& openingDota7();
  // Somebody else may have changed the registry.
  void forgetDota7() { openingDota7_.reset(); }

 private:
  [[nodiscard]] ConfigMoment moment() const;
  void join(EditStep step);
  void restore(const ConfigMoment& moment);
  [[nodiscard]] bool restoreDota7(const EditStep& step, bool isUndo);

  HotkeyConfig& config_;
  Dota7KeyInfoManager& manager_;
  std::vector<EditStep> done_;
  std::vector<EditStep> undone_;  // the last one is the first to be done again
  ConfigMoment last_;
  Dota7Step unseen_;  // what has changed in the registry before the first step, seen by nobody
  Dota7Cast lastCast_;
  ConfigMoment opening_;
  std::optional<Dota7Settings> openingDota7_;
};

}  // namespace brennet
