#pragma once

#include "gameside/dota7/Dota7Undo.h"
#include "platform/PrivateFile.h"

namespace brennet {

// The changes of a run of the dialog, on the disk before they are made, so that they can be undone
// after a process or a machine that ended in the middle. That the journal is empty or gone is what
// makes the changes the player's.
//
// It is a file in the user's own folder (platform/PrivateFile.h), one for each run that is under
// way: "dota7-REGISTRY-NUMBER.undo", with a checksum of the registry's identity and a number from 0
// to 7. The journal of a process that is running is nobody else's business.
class Dota7Journal {
 public:
  // Undoes what runs left that did not end, of processes that have ended, and removes their
  // journals. A journal that is damaged tells nothing, and goes.
  // Gives what could not be undone at this moment, most often nothing; its journal then is that of
  // the run that begins now. Throws std::bad_alloc: then what was not undone is so another time.
  [[nodiscard]] Dota7Undos recover();

  // Brings `undos` to the disk. Returns whether they are there; where not, the changes of a process
  // that is killed stay, those apart of which the journal told before. Throws std::bad_alloc.
  bool write(const Dota7Undos& undos);

  // The changes have been accepted, or all of them given back: the journal tells nothing any more.
  // Where that fails, it is tried again by the next recover(), and the next write() replaces it.
  void drop() noexcept;

  // The run has ended, but some of its changes could not be given back: the journal stays for the
  // next one.
  void leave() noexcept { file_.release(); }

 private:
  [[nodiscard]] bool takeFree();

  platform::PrivateFile file_;
};

}  // namespace brennet
