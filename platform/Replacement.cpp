#include "platform/Replacement.h"

#include "platform/InPlaceWrite.h"
#include "platform/KeptFiles.h"
#include "platform/Leftovers.h"
#include "platform/OpenFile.h"
#include "platform/TemporaryFile.h"

namespace brennet::platform {
namespace {

constexpr int kTries = 10;  // each with another temporary file

bool isFile(FileSystem& system, const Path& path) {
  return system.look(path).kind == FileFacts::Kind::File;
}

bool exists(FileSystem& system, const Path& path) {
  return system.look(path).kind != FileFacts::Kind::Nothing;
}

// Removes the backup of a file that has its own name again, once that name is on the disk.
FileError dropBackup(FileSystem& system, const Path& backup, const Path& path, const Path& folder) {
  const FileError error = system.flushFolder(folder);
  return error ? error : system.removeBackup(backup, path);
}

// What is at the name before it is replaced.
struct Target {
  bool isThere = false;
  bool isLink = false;
  std::uint64_t names = 1;  // those under which it was not put aside keep the old content
  std::uint64_t size = 0;   // in bytes
};

// Finds out what is at `path`, and whether a file can be written there.
FileError inspect(FileSystem& system, const Path& path, Target& target) {
  OpenFile file(system);
  const FileError error = file.open(path, OpenFor::Writing);
  if (isBeingReplaced(system, path, error)) return busy();
  if (error && error.obstacle != Obstacle::Missing) return error;
  target.isThere = !error;
  if (target.isThere) {
    target.names = file.facts().links;
    target.size = file.facts().size;
  }
  target.isLink = system.look(path).kind == FileFacts::Kind::Link;
  return {};
}

enum class Way {
  Gone,      // to the end, with or without success
  Closed,    // no way through a temporary file; nothing has changed
  TryAgain,  // somebody took the temporary file away
};

struct Outcome {
  Way way = Way::Gone;
  FileError error;
};

// A file that is replaced through a temporary one. All names are made first: once something has
// changed, no memory is taken.
class Replacement {
 public:
  Replacement(FileSystem& system, Patience& patience, const Path& path, const Target& target,
              std::string_view bytes)
      : system_(system),
        patience_(patience),
        path_(path),
        folder_(path.parent_path()),
        backup_(backupName(path)),
        target_(target),
        bytes_(bytes) {}

  Outcome run() {
    for (int tries = 0; tries < kTries; ++tries) {
      TemporaryFile temporary(system_, patience_);
      const FileError error =
          temporary.create(path_, target_.isThere ? OpenFor::NewAndPrivate : OpenFor::New);
      // Without a folder there is no other way either. If there is one, "missing" means that the
      // name is too long for it.
      const bool isGone = error.obstacle == Obstacle::Missing && !isFolderThere();
      if (error) return {isGone ? Way::Gone : Way::Closed, error};
      temporary_ = temporary.name();
      const Outcome outcome = fillAndPlace(temporary);
      if (outcome.way != Way::TryAgain) return outcome;
    }
    return {Way::Closed, {}};
  }

 private:
  // An empty name is that of the current folder.
  [[nodiscard]] bool isFolderThere() const { return folder_.empty() || exists(system_, folder_); }

  Outcome fillAndPlace(TemporaryFile& temporary) {
    if (const FileError error = fill(temporary.file())) return {Way::Gone, error};
    const FileError error = takePlace();
    if (!error) {
      temporary.hasMoved();
      // So that the new name is on the disk too. The content is safe either way.
      static_cast<void>(system_.flushFolder(folder_));
      return {};
    }
    // A torn file has to be put right first.
    if (torn_) return {Way::Gone, torn_};
    // If the old content exists only as the backup, nothing is written in place: another process
    // would take that for the file, and remove the backup.
    if (isMovedAway()) return {Way::Gone, error};
    // A file that has appeared meanwhile has rights, which another temporary file will get.
    const bool hasCome = !target_.isThere && error.obstacle == Obstacle::Exists;
    target_.isThere = target_.isThere || hasCome;
    return {hasCome || !exists(system_, temporary_) ? Way::TryAgain : Way::Closed, error};
  }

  // Writes, flushes and closes; the first failure counts.
  FileError fill(OpenFile& file) {
    FileError error = file.writeAll(bytes_);
    if (!error && target_.isThere) system_.copyRights(path_, file.handle());
    if (!error) error = file.flush();
    return error ? error : file.close();
  }

  // Gives the temporary file the place of the other, which may disappear meanwhile.
  FileError takePlace() {
    while (target_.isThere) {
      const FileError error = exchange();
      const bool hasGone = error.obstacle == Obstacle::Missing && exists(system_, temporary_);
      if (!hasGone) return error;
      // Either another process is replacing the file at this moment, or it is gone for good.
      if (isMovedAway()) {
        if (!patience_.wait(system_)) return error;
      } else {
        target_.isThere = false;
      }
    }
    // The folder took the temporary file, so its disk is not away.
    return makeInsteadOfTorn(system_, patience_, path_, [&] { return moveTo(path_); });
  }

  // Locks the old file meanwhile, if it can be read, so that no process of ours begins to write it
  // in place: what is kept of such a write would be put back over the new content some day.
  FileError exchangeWhole() {
    OpenFile old(system_);
    FileError error = old.open(path_, OpenFor::Reading);
    if (!error) error = old.lock(Sharing::Together);
    if (isHeld(error)) return error;
    torn_ = busyIfTorn(system_, path_);
    return torn_ ? torn_ : system_.exchange(temporary_, path_, backup_);
  }

  FileError exchange() {
    FileError error = retried(
        system_, patience_, [&] { return exchangeWhole(); },
        [&](const FileError& failed) { return isHeld(failed) && !torn_; });
    if (error.obstacle == Obstacle::Halfway) {
      error = moveTo(path_);
      if (error) {
        static_cast<void>(
            retried(system_, patience_, [&] { return system_.move(backup_, path_); }));
      }
    }
    // What cannot be removed now goes another time.
    if (isFile(system_, backup_)) {
      static_cast<void>(retried(system_, patience_,
                                [&] { return dropBackup(system_, backup_, path_, folder_); }));
    }
    return error;
  }

  FileError moveTo(const Path& name) {
    return retried(system_, patience_, [&] { return system_.move(temporary_, name); });
  }

  // Whether the old file has the backup's name and nothing has its own.
  bool isMovedAway() { return isFile(system_, backup_) && !exists(system_, path_); }

  FileSystem& system_;
  Patience& patience_;
  const Path& path_;
  Path folder_;
  Path backup_;
  Path temporary_;
  Target target_;
  std::string_view bytes_;
  FileError torn_;  // set if the old file is torn, or may be
};

FileError awaitReplacement(FileSystem& system, Patience& patience, const Path& path) {
  const Path backup = backupName(path);
  do {
    if (!isFile(system, backup)) return {};
    if (exists(system, path)) {
      static_cast<void>(dropBackup(system, backup, path, path.parent_path()));
      return {};
    }
  } while (patience.wait(system));
  const FileError error = system.move(backup, path);
  // Another process has done it.
  const bool isDone = error.obstacle == Obstacle::Missing || error.obstacle == Obstacle::Exists;
  return isDone ? FileError() : error;
}

// Usually another file takes its place; else it is written in place, once nothing that was put
// aside can be lost by that. `path` is not a link, and nothing has to be put right there.
FileError replaceAt(FileSystem& system, Patience& patience, const Path& path,
                    std::string_view bytes, const Target& target, OldContent old, KeptFiles& kept) {
  const bool isShared = target.names > 1 + kept.links();
  if (!target.isLink && !isShared) {
    if (old == OldContent::Keep && target.isThere) kept.keep();
    const Outcome outcome = Replacement(system, patience, path, target, bytes).run();
    if (outcome.way == Way::Gone) return outcome.error;
  }
  if (const FileError error = mayWriteInPlace(target.size, bytes)) return error;
  if (old == OldContent::Keep || kept.links() != 0) {
    if (const FileError error = kept.keepCopy()) return error;
  }
  return writeInPlace(system, patience, path, bytes);
}

}  // namespace

Path backupName(const Path& path) {
  Path name = path;
  name += ".brennet-old";
  return name;
}

FileError settle(FileSystem& system, Patience& patience, const Path& path) {
  const FileError error = awaitReplacement(system, patience, path);
  if (error) return error;
  const FileError undone = undoTornWrite(system, patience, path);
  // A caller would take that for a file that does not exist.
  return undone.obstacle == Obstacle::Missing ? busy() : undone;
}

bool isBeingReplaced(FileSystem& system, const Path& path, const FileError& error) {
  // A link to nothing is not a file that has appeared meanwhile.
  return error.obstacle == Obstacle::Missing &&
         (isFile(system, backupName(path)) || isFile(system, path));
}

namespace {

// Replaces the file once; Held also if another process came in between.
FileError replaceOnce(FileSystem& system, Patience& patience, const Path& path,
                      std::string_view bytes, OldContent old) {
  Target target;
  FileError error = settle(system, patience, path);
  if (!error) error = inspect(system, path, target);
  if (error) return error;
  removeLeftovers(system, path);
  KeptFiles kept(system, patience, path);
  if (old == OldContent::Keep || target.names > 1) kept.find(target.names);
  error = replaceAt(system, patience, path, bytes, target, old, kept);
  if (!error) kept.stay();
  return error;
}

}  // namespace

FileError replaceFileOn(FileSystem& system, Patience& patience, const Path& name,
                        std::string_view bytes, OldContent old) {
  if (name.empty()) {
    return {Obstacle::Missing, std::make_error_code(std::errc::no_such_file_or_directory)};
  }
  const Path path = system.resolved(name);
  return retried(system, patience, [&] { return replaceOnce(system, patience, path, bytes, old); });
}

}  // namespace brennet::platform
