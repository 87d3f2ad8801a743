#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "gameside/dota7/Dota7Change.h"
#include "gameside/dota7/Dota7Journal.h"
#include "gameside/dota7/Dota7KeyNames.h"
#include "gameside/dota7/Dota7Settings.h"
#include "gameside/dota7/Dota7Step.h"
#include "platform/Registry.h"

namespace brennet {

// The DotA 7 settings: the names of their keys, their values, and how each change is written to the
// registry and undone.
//
// A change is recorded under the object name of its field and written at once. Before a value is
// first changed, its old content is kept until the changes are accepted or cancelled: in memory,
// and in a journal on the disk, so that if the process ends in between, the next run restores the
// registry. If the journal cannot be written, changes are made all the same. What the registry
// refuses to write is silently skipped; no key is created. GUI thread only.
class Dota7KeyInfoManager : public QObject, private Dota7ChangeSink {
  Q_OBJECT

 public:
  // The name of a key, and the text of a key with a modifier key; see Dota7KeyNames.h.
  std::u16string keyName(int code) { return names_.keyName(code); }
  std::u16string keyText(int keyCode, int modifierCode) {
    return names_.keyText(keyCode, modifierCode);
  }
  [[nodiscard]] const Dota7KeyNames& names() const { return names_; }

  // What the pages show: the values as last read and changed.
  [[nodiscard]] Dota7Settings& settings() { return settings_; }

  // Keeps the change under the object name of its field, in place of an earlier one.
  void record(std::u16string_view objectName, Dota7Change change);
  // All recorded changes, in the order of their object names.
  [[nodiscard]] const std::map<std::u16string, Dota7Change, std::less<>>& records() const {
    return records_;
  }

  // Begins a run of the dialog, before anything is read: undoes what was changed by unfinished
  // runs, of this process or of an ended one, and by runs that could not restore everything. Values
  // that somebody else has changed since are left alone. What cannot be undone at this moment
  // belongs to this run: if it is cancelled, that is tried again; if it is accepted, the player has
  // seen it. Throws std::bad_alloc.
  void beginRun();

  // Writes the change. A value that is already there is not written again.
  void writeValue(const Dota7Change& change) { writeValues({&change, 1}); }
  // The same for many, one after the other; the journal is written once.
  void writeValues(std::span<const Dota7Change> changes);
  // Writes the changes of fields and records them.
  void apply(std::span<const Dota7FieldChange> changes) override;

  // What this run has changed in the registry since the last call, or since it began. Values that
  // hold again what they held then are left out. Throws std::bad_alloc.
  [[nodiscard]] Dota7Step takeStep();

  // Puts what the values of a step held before it back into the registry, or what they held after
  // it. Forgets the recorded changes, and reads the settings again: what the registry refuses to
  // change stays, and the answer is false. Like every other change, this can be cancelled, and
  // belongs to no further step. Throws std::bad_alloc; a part of the values may have changed then.
  bool undo(const Dota7Step& step) { return restore(step, &Dota7Edit::before); }
  bool redo(const Dota7Step& step) { return restore(step, &Dota7Edit::after); }

  // The settings as they were before this run changed anything, in the present cast mode; nothing
  // is stored through them. Reads the registry.
  [[nodiscard]] Dota7Settings settingsBefore();

  // The player accepts: writes the recorded changes once more and forgets them and the old values.
  // Once the journal is gone, nothing undoes them.
  void acceptChanges();

  // The player cancels: forgets the recorded changes, restores the old values in the registry, or
  // their absence, and reads the settings again. What could not be restored is not restored in the
  // middle of a later run, but when the next one begins. Throws std::bad_alloc, and then has
  // restored everything that memory sufficed for.
  void cancelChanges();

  // Forgets the recorded changes, which were written when they were made, and reads the settings
  // again. The changes can still be cancelled.
  void refresh();

  // Writes all recorded changes.
  Q_SLOT void writeRecords();

 private:
  void endRun(bool isUndone) noexcept;
  // A value to be put into the registry; nothing: it is to be removed.
  using Content = std::optional<platform::RegistryValue>;

  bool restore(const Dota7Step& step, Content Dota7Edit::*side);
  bool put(platform::RegistryKey& key, const Dota7Place& place, const Content& value);
  void noteFor(const Dota7Place& place, const platform::RegistryKey::Reading& now,
               const Content& value);
  void writeJournal();

  Dota7KeyNames names_;
  std::map<std::u16string, Dota7Change, std::less<>> records_;
  Dota7Undos before_;
  Dota7Step step_;  // since it was last taken
  Dota7Journal journal_;
  bool isJournalBehind_ = false;  // something has been noted since it was last written
  Dota7Settings settings_{names_, *this};
};

}  // namespace brennet
