#include "platform/KeptWrite.h"

#include "platform/Checksum.h"
#include "platform/Patience.h"

namespace brennet::platform {
namespace {

// Both contents, and what stands around them: a path, above all.
constexpr std::uint64_t kLargestRecord = 2 * kLargestInPlace + (1U << 20U);

std::string bytesOf(const Path& path) {
  const auto& text = path.native();
  return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(text.front())};
}

// A short name for a long one. Two files that share it cannot be written in place at once, and
// never get each other's content: the kept file has the long name as well.
std::string shortName(std::string_view text) {
  std::string name;
  appendDigits(checksum(text), name);
  return name;
}

FileError nowhere() {
  return {Obstacle::Denied, std::make_error_code(std::errc::no_such_file_or_directory)};
}

}  // namespace

KeptWrite::KeptWrite(FileSystem& system, const Path& path)
    : system_(system), folder_(system.privateFolder()), opened_(system) {
  if (folder_.empty()) return;
  file_ = bytesOf(system.identity(path));
  if (file_.empty()) return;
  parent_ = folder_.parent_path();
  name_ = folder_ / (shortName(file_) + ".kept");
}

KeptWrite::~KeptWrite() {
  if (!saysSomething_) static_cast<void>(discard());
}

bool KeptWrite::isAnyThere(FileSystem& system) {
  const Path folder = system.privateFolder();
  // A folder that anybody else may write into tells nothing that could be believed.
  return !folder.empty() && system.look(folder).kind == FileFacts::Kind::Folder &&
         !system.createPrivateFolder(folder);
}

bool KeptWrite::isThere() const {
  return !name_.empty() && system_.look(name_).kind == FileFacts::Kind::File;
}

FileError KeptWrite::openFile() {
  // Whoever had the file removes it and its folder in the end.
  return retried(
      system_,
      [&] {
        const FileError error = system_.createPrivateFolder(folder_);
        return error ? error : opened_.open(name_, OpenFor::Keeping);
      },
      [](const FileError& error) { return isHeld(error) || error.obstacle == Obstacle::Missing; });
}

FileError KeptWrite::open() {
  if (name_.empty()) return nowhere();
  if (const FileError error = openFile()) return error;
  saysSomething_ = true;  // as long as that is not known
  std::string kept;
  const FileError error = opened_.readAll(kept, kLargestRecord);
  // One that is longer than any that is written says nothing.
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
  // A folder that may not be looked into cannot be flushed either; the next one is older.
  if (!error) static_cast<void>(system_.flushFolder(parent_));
  return error;
}

FileError KeptWrite::discard() {
  if (opened_.handle() == kNoFile) return {};
  // While it is open, so that it is not one of somebody else who came in between. That one call is
  // what counts: after it nothing can go wrong but that a failing machine brings the file back.
  const FileError removed = system_.removeKept(opened_.handle(), name_);
  const bool isGone = !removed && !system_.flushFolder(folder_);
  const FileError emptied = isGone ? FileError() : opened_.resize(0);
  if (removed && emptied) return removed;
  if (!isGone && !emptied) static_cast<void>(opened_.flush());
  saysSomething_ = false;
  static_cast<void>(opened_.close());
  system_.removeFolder(folder_);
  return {};
}

}  // namespace brennet::platform
