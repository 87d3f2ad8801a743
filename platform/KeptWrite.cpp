#include "platform/KeptWrite.h"

#include <algorithm>
#include <cstring>

#include "platform/Checksum.h"
#include "platform/FileErrors.h"

namespace brennet::platform {
namespace {

// Both contents, and what encloses them: mainly a path.
constexpr std::uint64_t kLargestRecord = 2 * kLargestInPlace + (1U << 20U);
constexpr char kEnding[] = ".kept";
constexpr std::size_t kStart = std::size_t{66} << 10U;  // bytes; enough for the longest path

std::string bytesOf(const Path& path) {
  const auto& text = path.native();
  return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(text.front())};
}

Path pathOf(std::string_view bytes) {
  std::basic_string<Path::value_type> text(bytes.size() / sizeof(Path::value_type), 0);
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(Path::value_type));
  return text;
}

// A short name for a long one. Two files that share it cannot be written in place at the same time,
// but never get each other's content: the kept file holds the long name as well.
std::string shortName(std::string_view text) {
  std::string name;
  appendDigits(checksum(text), name);
  return name;
}

// The name of the kept file for the file with that identity.
Path keptName(const Path& folder, std::string_view file) {
  return folder / (shortName(file) + kEnding);
}

// Whether there can be a kept file for any file at all; usually there is none.
FileError findAny(FileSystem& system, const Path& folder, bool& isAnyThere) {
  isAnyThere = false;
  if (folder.empty()) return {};
  const FileError error = system.checkPrivateFolder(folder);
  isAnyThere = !error;
  // What is in a folder that others may write to cannot be trusted.
  const bool isNone = error.obstacle == Obstacle::Missing || error.obstacle == Obstacle::Denied;
  return isNone ? FileError() : error;
}

// Which file the kept file is about; none if the kept file is gone, or not written yet.
FileError readFileName(FileSystem& system, const Path& kept, std::optional<std::string>& file) {
  OpenFile opened(system);
  const FileError error = opened.open(kept, OpenFor::Reading);
  // Access to a file that is about to go is denied.
  const bool isGone = error.obstacle == Obstacle::Missing || error.obstacle == Obstacle::Denied;
  if (error) return isGone ? FileError() : error;
  std::string start;
  if (const FileError failed = opened.readStart(start, kStart)) return failed;
  file = TornWrite::fileIn(start);
  return {};
}

template <class Call>
FileError askedTwice(Call call) {
  const FileError error = call();
  return error ? call() : error;
}

FileError nowhere() {
  return {Obstacle::Denied, std::make_error_code(std::errc::no_such_file_or_directory)};
}

}  // namespace

KeptWrite::KeptWrite(FileSystem& system, Patience& patience, const Identity& identity)
    : system_(system), patience_(patience), folder_(system.privateFolder()), opened_(system) {
  if (folder_.empty()) return;
  file_ = bytesOf(identity.path);
  if (file_.empty()) return;
  parent_ = folder_.parent_path();
  name_ = keptName(folder_, file_);
}

KeptWrite::~KeptWrite() {
  if (!saysSomething_) static_cast<void>(discard());
}

FileError KeptWrite::find(FileSystem& system, const Path& path, std::vector<Identity>& names) {
  names.clear();
  const Path folder = system.privateFolder();
  bool isAnyThere = false;
  const FileError unknown = findAny(system, folder, isAnyThere);
  if (unknown || !isAnyThere) return unknown;
  const Path ownIdentity = system.identity(path);
  const std::string identity = bytesOf(ownIdentity);
  const Path own = keptName(folder, identity);
  std::optional<std::string> file;
  FileError error = readFileName(system, own, file);
  if (error) return error;
  // A kept file that is not written yet will be about the file that its name stands for.
  const bool isOwn = file ? *file == identity : system.look(own).kind == FileFacts::Kind::File;
  if (isOwn) names.push_back({ownIdentity, file.has_value()});
  const FileError unlisted = system.list(folder, [&](const Path& entry) {
    if (error || entry.extension() != kEnding || folder / entry == own) return;
    file.reset();
    error = readFileName(system, folder / entry, file);
    if (!file || keptName(folder, *file) != folder / entry) return;
    const Path name = pathOf(*file);
    if (system.isSameFile(name, path)) names.push_back({name, true});
  });
  // Another process that used the folder may have removed it.
  return error || unlisted.obstacle == Obstacle::Missing ? error : unlisted;
}

bool KeptWrite::isThere() const {
  return !name_.empty() && system_.look(name_).kind == FileFacts::Kind::File;
}

FileError KeptWrite::openFile() {
  // Another process that had the file removes it and its folder in the end.
  return retried(
      system_, patience_,
      [&] {
        const FileError error = system_.createPrivateFolder(folder_);
        return error ? error : opened_.open(name_, OpenFor::Keeping);
      },
      [](const FileError& error) { return isHeld(error) || error.obstacle == Obstacle::Missing; });
}

FileError KeptWrite::open() {
  if (name_.empty()) return nowhere();
  if (const FileError error = openFile()) return error;
  saysSomething_ = true;  // until the file has been read
  std::string kept;
  const FileError error = opened_.readAll(kept, kLargestRecord);
  // A file that is longer than any record says nothing.
  if (error && !isTooLarge(error.code)) return error;
  found_ = TornWrite::parse(kept);
  if (found_ && found_->file != file_) {
    return {Obstacle::Exists, std::make_error_code(std::errc::file_exists)};
  }
  saysSomething_ = found_.has_value();
  return {};
}

FileError KeptWrite::write(const std::optional<std::string>& old, std::string_view bytes) {
  const TornWrite::Frame frame = TornWrite::frame(file_, old, bytes);
  const std::string_view before = old ? std::string_view(*old) : std::string_view();
  FileError error = opened_.resize(0);
  std::uint64_t offset = 0;
  for (const std::string_view part :
       {std::string_view(frame.start), before, bytes, std::string_view(frame.end)}) {
    if (!error) error = opened_.writeAt(offset, part);
    offset += part.size();
  }
  saysSomething_ = !error;
  if (!error) error = opened_.flush();
  if (!error) error = system_.flushFolder(folder_);
  // A folder that may not be read cannot be flushed either; the parent has existed for longer.
  if (!error) static_cast<void>(system_.flushFolder(parent_));
  return error;
}

FileError KeptWrite::discard() {
  if (opened_.handle() == kNoFile) return {};
  // An empty file says nothing to anybody; flushed, it says nothing even after a power loss. Each
  // call is tried twice, because not every system can bring a removal to the disk instead.
  const FileError emptied = askedTwice([&] { return opened_.resize(0); });
  const FileError flushed = emptied ? emptied : askedTwice([&] { return opened_.flush(); });
  // While it is open, so that no other process's new file is removed instead.
  const FileError removed = system_.removeKept(opened_.handle(), name_);
  if (emptied && removed) return removed;
  if (flushed) static_cast<void>(system_.flushFolder(folder_));
  saysSomething_ = false;
  static_cast<void>(opened_.close());
  system_.removeFolder(folder_);
  return {};
}

}  // namespace brennet::platform
