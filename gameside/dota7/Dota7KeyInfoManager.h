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
#include "platform/Registry.h"

namespace brennet {

// The DotA 7 settings: the names of their keys, their values, and the way of every change into the
// registry and out of it again.
//
// A change is recorded under the object name of its field and written at once. Before a value is
// first changed, what stood there is kept, until the changes are accepted or cancelled: in memory,
// and in a journal on the disk, so that a process that ends in between leaves the registry as it
// was, or will be again when the next run begins. Where the journal cannot be written, changes are
// made all the same. What the registry does not let us write is passed over in silence; no key is
// created. GUI thread only.
class Dota7KeyInfoManager : public QObject, private Dota7ChangeSink {
  Q_OBJECT

 public:
  // The name of a key, and the text of a key with a modifier key; see Dota7KeyNames.h.
  std::u16string keyName(int code) { return names_.keyName(code); }
  std::u16string keyText(int keyCode, int modifierCode) {
    return names_.keyText(keyCode, modifierCode);
  }
  [[nodiscard]] const Dota7KeyNames& names() const { return names_; }

  // What the pages show, as it was last read and changed.
  [[nodiscard]] Dota7Settings& settings() { return settings_; }

  // Keeps the change under the object name of its field, in place of an earlier one.
  void record(std::u16string_view objectName, Dota7Change change);
  // All recorded changes, in the order of their object names.
  [[nodiscard]] const std::map<std::u16string, Dota7Change, std::less<>>& records() const {
    return records_;
  }

  // A run of the dialog begins, before anything is read: undoes what was changed by runs that did
  // not end, in this process or in one that has ended, and by those of which not everything could
  // be given back. Values that somebody else has changed since are left alone.
  // What cannot be undone at this moment belongs to this run: if it is cancelled, that is tried
  // again; if it is accepted, the player has seen it. Throws std::bad_alloc.
  void beginRun();

  // Writes what the change says. A value that is there already is not written again.
  void writeValue(const Dota7Change& change) { writeValues({&change, 1}); }
  // The same for many, one after the other; the journal is written once.
  void writeValues(std::span<const Dota7Change> changes);
  // Writes the changes of fields and records them.
  void apply(std::span<const Dota7FieldChange> changes) override;

  // The player is content: writes the recorded changes once more and forgets them and what stood
  // there before. From the moment on in which the journal is gone, nothing undoes them.
  void acceptChanges();

  // The player wants none of it: forgets the recorded changes, gives the registry back what stood
  // there before, or its absence, and reads the settings again. What could not be given back is not
  // given back in the middle of a later run, but when the next one begins.
  // Throws std::bad_alloc, and then has given back everything that memory was there for.
  void cancelChanges();

  // Forgets the recorded changes, which were written when they were made, and reads the settings
  // again. The changes can still be cancelled.
  void refresh();

  // Writes all recorded changes.
  Q_SLOT void writeRecords();

 private:
  void endRun(bool isUndone) noexcept;
  void put(platform::RegistryKey& key, const Dota7Place& place,
           const platform::RegistryValue& value);
  void noteFor(const Dota7Place& place, const platform::RegistryKey::Reading& now,
               const platform::RegistryValue& value);
  void writeJournal();

  Dota7KeyNames names_;
  std::map<std::u16string, Dota7Change, std::less<>> records_;
  Dota7Undos before_;
  Dota7Journal journal_;
  bool isJournalBehind_ = false;  // something was noted since it was last written
  Dota7Settings settings_{names_, *this};
};

}  // namespace brennet
