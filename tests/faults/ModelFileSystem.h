#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace brennet::test {

using platform::FileError;
using platform::FileFacts;
using platform::FileHandle;
using platform::FileSystem;
using platform::Obstacle;
using platform::OpenFor;
using platform::Path;
using platform::Sharing;

FileError failureOf(Obstacle obstacle);

// A file system in memory. It tells apart what programs see and what is on the disk: contents get
// there by flush, names by flushFolder. Whatever has not got there may or may not exist after a
// power loss.
class ModelFileSystem final : public FileSystem {
 public:
  // What is different about a place.
  struct Nature {
    std::set<Path> closedFolders;    // take no new names
    std::set<Path> shortNames;       // folders that take names of one letter only...
    bool findsNoLongNames = false;   // ...and report that there is no place for others
    std::set<Path> unlistedFolders;  // cannot be looked through
    std::set<Path> mounts;           // files that nothing can replace
    std::set<Path> foreignFiles;     // only their owner may link, rename, remove or replace them
    std::map<Path, int> busy;        // how many pauses another program has the file for
    bool twoSteps = false;           // exchange() moves the old file away first
    bool hasLinks = true;            // files can have several names
    bool hasPrivateFolder = true;
    // flushFolder() does nothing. Flushed files, moves and links are on the disk all the same, but
    // nobody knows when a removal is.
    bool flushesNoFolders = false;
  };
  Nature nature;

  // What other programs do in the middle of an operation.
  struct Others {
    std::function<void(const Path& path, OpenFor purpose)> beforeOpen;
    std::function<void(const Path& path)> beforeRead;
    std::function<void()> beforePrivateFolder;  // before it is made or checked
  };
  Others others;

  // How often somebody has waited, and how long each time takes, in milliseconds.
  int pauses = 0;
  std::uint64_t pauseLength = 20;

  ModelFileSystem();

  // For the test itself: what is made here is on the disk at once.
  void makeFolder(const Path& path);
  void makeFile(const Path& path, std::string content);
  void makeLink(const Path& path, const Path& target);
  void makeSecondName(const Path& path, const Path& second);
  void removeFile(const Path& path);
  // The content as programs see it; "(none)" where there is no file.
  [[nodiscard]] std::string contentOf(const Path& path) const;
  // All files and folders below `folder`, each followed by a line break.
  [[nodiscard]] std::string listing(const Path& folder) const;

  // All programs end; what they saw stays.
  void endPrograms();
  // The power fails: what was not flushed comes out in one of several ways, each with its number; 0
  // leaves exactly what was flushed, 1 everything.
  void losePower(unsigned way);

  // The next exchange() stops after its first step, as if the process had ended there.
  void stopHalfway() { stopsHalfway_ = true; }

  FileError open(const Path& path, OpenFor purpose, FileHandle& file, FileFacts& facts) override;
  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override;
  FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                  std::size_t& count) override;
  FileError resize(FileHandle file, std::uint64_t size) override;
  FileError reserve(FileHandle file, std::uint64_t size) override;
  FileError flush(FileHandle file) override;
  FileError lock(FileHandle file, Sharing sharing) override;
  FileError close(FileHandle file) override;
  void copyRights(const Path& path, FileHandle file) override;
  FileFacts look(const Path& path) override;
  FileError move(const Path& from, const Path& to) override;
  FileError exchange(const Path& replacement, const Path& path, const Path& backup) override;
  FileError link(const Path& path, const Path& second) override;
  bool isSameFile(const Path& a, const Path& b) override;
  FileError remove(const Path& path) override;
  FileError removeKept(FileHandle file, const Path& path) override;
  FileError removeBackup(const Path& backup, const Path& path) override;
  FileError createFolder(const Path& name) override;
  FileError createPrivateFolder(const Path& path) override;
  FileError checkPrivateFolder(const Path& path) override;
  void removeFolder(const Path& path) override;
  FileError flushFolder(const Path& path) override;
  FileError list(const Path& folder, const std::function<void(const Path& name)>& visit) override;
  bool isSameName(std::basic_string_view<Path::value_type> a,
                  std::basic_string_view<Path::value_type> b) override;
  Path resolved(const Path& path) override;
  Path identity(const Path& path) override;
  Path privateFolder() override;
  unsigned long process() override { return process_; }
  bool isRunning(unsigned long process) override { return process == process_; }
  std::int64_t wallTime() override;
  std::uint64_t clock() override { return time_; }
  void pause() override;

 private:
  struct Node {
    FileFacts::Kind kind = FileFacts::Kind::File;
    std::string content;  // as programs see it
    std::string flushed;  // as it is on the disk
    Path target;          // of a link
  };
  using NodePointer = std::shared_ptr<Node>;
  using Names = std::map<Path, NodePointer>;

  // What happened to names since their folder was flushed: in one step, one name got a node, and
  // one may have gone.
  struct Change {
    Path name;
    NodePointer node;
    Path gone;
  };

  struct Opened {
    NodePointer node;
    Path name;
    OpenFor purpose;
    std::optional<Sharing> lock = {};
  };

  [[nodiscard]] NodePointer nodeAt(const Path& path) const;
  [[nodiscard]] unsigned linksOf(const NodePointer& node) const;
  static void apply(const Change& change, Names& names);
  void change(Change change);
  // Brings those changes to the disk for which `isMeant` returns true.
  void flushChanges(const std::function<bool(const Change&)>& isMeant);
  FileError mayName(const Path& path) const;
  bool isBusy(const Path& path);
  bool isKept(const NodePointer& node) const;

  Names names_;
  Names flushedNames_;
  std::vector<Change> changes_;
  std::map<FileHandle, Opened> opened_;
  FileHandle lastHandle_ = 0;
  unsigned long process_ = 1;
  std::uint64_t time_ = 0;
  bool stopsHalfway_ = false;
};

}  // namespace brennet::test
