#pragma once

#include <functional>
#include <string_view>

#include "platform/FileSystem.h"

namespace brennet::test {

// Passes all calls on to another file system: the computer's own, unless told otherwise. A test
// overrides those that are to do something else.
class PassingFileSystem : public platform::FileSystem {
 public:
  using Path = platform::Path;
  using FileError = platform::FileError;
  using FileHandle = platform::FileHandle;

  explicit PassingFileSystem(platform::FileSystem& system = platform::operatingSystem())
      : system_(system) {}

  FileError open(const Path& path, platform::OpenFor purpose, FileHandle& file,
                 platform::FileFacts& facts) override {
    return system_.open(path, purpose, file, facts);
  }
  FileError read(FileHandle file, std::uint64_t offset, char* bytes, std::size_t size,
                 std::size_t& count) override {
    return system_.read(file, offset, bytes, size, count);
  }
  FileError write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                  std::size_t& count) override {
    return system_.write(file, offset, bytes, count);
  }
  FileError resize(FileHandle file, std::uint64_t size) override {
    return system_.resize(file, size);
  }
  FileError reserve(FileHandle file, std::uint64_t size) override {
    return system_.reserve(file, size);
  }
  FileError flush(FileHandle file) override { return system_.flush(file); }
  FileError lock(FileHandle file, platform::Sharing sharing) override {
    return system_.lock(file, sharing);
  }
  FileError close(FileHandle file) override { return system_.close(file); }
  void copyRights(const Path& path, FileHandle file) override { system_.copyRights(path, file); }
  platform::FileFacts look(const Path& path) override { return system_.look(path); }
  FileError move(const Path& from, const Path& to) override { return system_.move(from, to); }
  FileError exchange(const Path& replacement, const Path& path, const Path& backup) override {
    return system_.exchange(replacement, path, backup);
  }
  FileError link(const Path& path, const Path& second) override {
    return system_.link(path, second);
  }
  bool isSameFile(const Path& a, const Path& b) override { return system_.isSameFile(a, b); }
  FileError remove(const Path& path) override { return system_.remove(path); }
  FileError removeKept(FileHandle file, const Path& path) override {
    return system_.removeKept(file, path);
  }
  FileError removeBackup(const Path& backup, const Path& path) override {
    return system_.removeBackup(backup, path);
  }
  FileError createFolder(const Path& path) override { return system_.createFolder(path); }
  FileError createPrivateFolder(const Path& path) override {
    return system_.createPrivateFolder(path);
  }
  FileError checkPrivateFolder(const Path& path) override {
    return system_.checkPrivateFolder(path);
  }
  void removeFolder(const Path& path) override { system_.removeFolder(path); }
  FileError flushFolder(const Path& path) override { return system_.flushFolder(path); }
  FileError list(const Path& folder, const std::function<void(const Path& name)>& visit) override {
    return system_.list(folder, visit);
  }
  bool isSameName(std::basic_string_view<Path::value_type> a,
                  std::basic_string_view<Path::value_type> b) override {
    return system_.isSameName(a, b);
  }
  Path resolved(const Path& path) override { return system_.resolved(path); }
  Path identity(const Path& path) override { return system_.identity(path); }
  Path privateFolder() override { return system_.privateFolder(); }
  unsigned long process() override { return system_.process(); }
  bool isRunning(unsigned long process) override { return system_.isRunning(process); }
  std::int64_t wallTime() override { return system_.wallTime(); }
  std::uint64_t clock() override { return system_.clock(); }
  void pause() override { system_.pause(); }

 private:
  platform::FileSystem& system_;
};

}  // namespace brennet::test
