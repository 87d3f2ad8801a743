#include "tests/faults/FaultyFileSystem.h"

#include <algorithm>

namespace brennet::test {

void FaultyFileSystem::plan(int call, Fault fault, Obstacle error) {
  planned_ = call;
  fault_ = fault;
  error_ = error;
  calls_ = 0;
  hasEnded_ = false;
  faulty_.clear();
}

Fault FaultyFileSystem::next(const char* name) {
  if (hasEnded_) return Fault::EndsBefore;
  const int call = calls_++;
  if (call == planned_) faulty_ = name;
  const bool isFaulty =
      call == planned_ || (planned_ >= 0 && call > planned_ && fault_ == Fault::FailsForGood);
  if (!isFaulty) return Fault::None;
  hasEnded_ =
      fault_ == Fault::EndsBefore || fault_ == Fault::EndsAfter || fault_ == Fault::EndsInside;
  return fault_;
}

template <class Call, class Part>
FileError FaultyFileSystem::passed(const char* name, Call call, Part part) {
  switch (next(name)) {
    case Fault::Fails:
    case Fault::FailsForGood:
    case Fault::EndsBefore:
      return failureOf(error_);
    case Fault::EndsAfter:
      static_cast<void>(call());
      return failureOf(error_);
    case Fault::EndsInside:
      static_cast<void>(part());
      return failureOf(error_);
    case Fault::Short:
      return part();
    case Fault::None:
      break;
  }
  return call();
}

template <class Call>
FileError FaultyFileSystem::passed(const char* name, Call call) {
  return passed(name, call, call);
}

FileError FaultyFileSystem::open(const Path& path, OpenFor purpose, FileHandle& file,
                                 FileFacts& facts) {
  return passed("open", [&] { return system_.open(path, purpose, file, facts); });
}

FileError FaultyFileSystem::read(FileHandle file, std::uint64_t offset, char* bytes,
                                 std::size_t size, std::size_t& count) {
  return passed(
      "read", [&] { return system_.read(file, offset, bytes, size, count); },
      [&] { return system_.read(file, offset, bytes, std::min<std::size_t>(size, 1), count); });
}

FileError FaultyFileSystem::write(FileHandle file, std::uint64_t offset, std::string_view bytes,
                                  std::size_t& count) {
  return passed(
      "write", [&] { return system_.write(file, offset, bytes, count); },
      [&] { return system_.write(file, offset, bytes.substr(0, (bytes.size() + 1) / 2), count); });
}

FileError FaultyFileSystem::resize(FileHandle file, std::uint64_t size) {
  return passed("resize", [&] { return system_.resize(file, size); });
}

FileError FaultyFileSystem::reserve(FileHandle file, std::uint64_t size) {
  return passed("reserve", [&] { return system_.reserve(file, size); });
}

FileError FaultyFileSystem::flush(FileHandle file) {
  return passed("flush", [&] { return system_.flush(file); });
}

FileError FaultyFileSystem::lock(FileHandle file, Sharing sharing) {
  return passed("lock", [&] { return system_.lock(file, sharing); });
}

// A file is closed even when closing fails.
FileError FaultyFileSystem::close(FileHandle file) {
  const auto call = [&] { return system_.close(file); };
  const FileError error = passed("close", call);
  if (error) static_cast<void>(call());
  return error;
}

void FaultyFileSystem::copyRights(const Path& path, FileHandle file) {
  static_cast<void>(passed("copyRights", [&] {
    system_.copyRights(path, file);
    return FileError();
  }));
}

FileFacts FaultyFileSystem::look(const Path& path) {
  FileFacts facts;
  static_cast<void>(passed("look", [&] {
    facts = system_.look(path);
    return FileError();
  }));
  return facts;
}

FileError FaultyFileSystem::move(const Path& from, const Path& to) {
  return passed("move", [&] { return system_.move(from, to); });
}

FileError FaultyFileSystem::exchange(const Path& replacement, const Path& path,
                                     const Path& backup) {
  const auto call = [&] { return system_.exchange(replacement, path, backup); };
  const auto firstStep = [&] {
    system_.stopHalfway();
    return call();
  };
  const FileError error = passed("exchange", call, firstStep);
  // Systems that exchange files in two steps can fail between them.
  const bool isFailure = fault_ == Fault::Fails || fault_ == Fault::FailsForGood;
  return isFailure && error.obstacle == Obstacle::Halfway ? firstStep() : error;
}

FileError FaultyFileSystem::link(const Path& path, const Path& second) {
  return passed("link", [&] { return system_.link(path, second); });
}

bool FaultyFileSystem::isSameFile(const Path& a, const Path& b) {
  bool isSame = false;
  static_cast<void>(passed("isSameFile", [&] {
    isSame = system_.isSameFile(a, b);
    return FileError();
  }));
  return isSame;
}

FileError FaultyFileSystem::remove(const Path& path) {
  return passed("remove", [&] { return system_.remove(path); });
}

FileError FaultyFileSystem::removeKept(FileHandle file, const Path& path) {
  return passed("removeKept", [&] { return system_.removeKept(file, path); });
}

FileError FaultyFileSystem::removeBackup(const Path& backup, const Path& path) {
  return passed("removeBackup", [&] { return system_.removeBackup(backup, path); });
}

FileError FaultyFileSystem::createFolder(const Path& path) {
  return passed("createFolder", [&] { return system_.createFolder(path); });
}

FileError FaultyFileSystem::createPrivateFolder(const Path& path) {
  return passed("createPrivateFolder", [&] { return system_.createPrivateFolder(path); });
}

FileError FaultyFileSystem::checkPrivateFolder(const Path& path) {
  return passed("checkPrivateFolder", [&] { return system_.checkPrivateFolder(path); });
}

void FaultyFileSystem::removeFolder(const Path& path) {
  static_cast<void>(passed("removeFolder", [&] {
    system_.removeFolder(path);
    return FileError();
  }));
}

FileError FaultyFileSystem::flushFolder(const Path& path) {
  return passed("flushFolder", [&] { return system_.flushFolder(path); });
}

FileError FaultyFileSystem::list(const Path& folder,
                                 const std::function<void(const Path& name)>& visit) {
  return passed("list", [&] { return system_.list(folder, visit); });
}

}  // namespace brennet::test
