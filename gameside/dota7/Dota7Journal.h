#pragma once

#include "gameside/dota7/Dota7Undo.h"
#include "platform/PrivateFile.h"

namespace brennet {

// The changes of a run of the dialog, written to the disk before they are made, so that they can be
// undone if the process or the machine ends in the middle. The changes are final once the journal
// is empty or gone.
//
// It is a file in the user's own folder (platform/PrivateFile.h), one for each current run:
// "dota7-REGISTRY-NUMBER.undo", with a checksum of the registry's identity and a number from 0 to
// 7. Nobody else touches the journal of a running process.
class Dota7Journal {
 public:
  // Undoes what the unfinished runs of ended processes left, and removes their journals. A damaged
  // journal counts as empty, and is removed. Returns what could not be undone at this moment,
  // usually nothing; its journal then becomes that of the run that begins now. Throws
  // std::bad_alloc; what was not undone then is undone another time.
  [[nodiscard]] Dota7Undos recover();

  // Writes `undos` to the disk. Returns whether they are there; if not, the changes of a killed
  // process stay, except those that the journal held before. Throws std::bad_alloc.
  bool write(const Dota7Undos& undos);

  // The changes have been accepted, or all of them undone: empties the journal. If that fails, the
  // next recover() tries again, or the next write() replaces it.
  void drop() noexcept;

  // The run has ended, but some of its changes could not be undone: the journal stays for the next
  // one.
  void leave() noexcept { file_.release(); }

 private:
  [[nodiscard]] bool takeFree();

  platform::PrivateFile file_;
};

}  // namespace brennet
