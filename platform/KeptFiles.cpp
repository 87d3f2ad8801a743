#include "platform/KeptFiles.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "platform/InPlaceWrite.h"
#include "platform/TemporaryFile.h"

namespace brennet::platform {
namespace {

constexpr char kStart[] = ".kept-";
constexpr std::string_view kStampForm = "00000000-000000";  // a zero for each digit
constexpr int kNames = 60;              // how many seconds are tried to find a free name
constexpr std::size_t kPiece = 65'536;  // bytes that are copied at once

using Text = std::basic_string<Path::value_type>;
using TextView = std::basic_string_view<Path::value_type>;

Text startFor(const Path& name) {
  Path start = name;
  start += kStart;
  return start.native();
}

std::string stampOf(std::int64_t wallTime) {
  using std::chrono::days;
  const std::chrono::sys_seconds time{std::chrono::seconds(wallTime)};
  const auto day = std::chrono::floor<days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d%02u%02u-%02d%02d%02d",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
                static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()));
  return text.data();
}

bool isStamp(TextView text) {
  return std::equal(text.begin(), text.end(), kStampForm.begin(), kStampForm.end(),
                    [](Path::value_type unit, char form) {
                      return form == '0' ? unit >= '0' && unit <= '9' : unit == '-';
                    });
}

// Copies the content of the file at `path`, which nobody of ours writes meanwhile. Held where it is
// torn.
FileError copyContent(FileSystem& system, Patience& patience, const Path& path,
                      const OpenFile& copy) {
  OpenFile file(system);
  const FileError error = retried(system, patience, [&] {
    static_cast<void>(file.close());
    const FileError closed = file.open(path, OpenFor::Reading);
    return closed ? closed : file.lock(Sharing::Together);
  });
  if (error) return error;
  std::string piece(kPiece, '\0');
  for (std::uint64_t offset = 0;;) {
    std::size_t count = 0;
    const FileError unread = retried(system, patience, [&] {
      return system.read(file.handle(), offset, piece.data(), kPiece, count);
    });
    if (unread) return unread;
    // A process of ours may have ended while it wrote the file.
    if (count == 0) return busyIfTorn(system, path);
    const std::string_view bytes = std::string_view(piece).substr(0, count);
    if (const FileError unwritten = copy.writeAt(offset, bytes)) return unwritten;
    offset += count;
  }
}

// Whether a new file beside an existing one was refused as by a folder that takes none, or none
// with so long a name; some systems report the latter as a missing place.
bool isRefused(const FileError& error) {
  return error.obstacle == Obstacle::Denied || error.obstacle == Obstacle::Exists ||
         error.obstacle == Obstacle::Missing || error.code == std::errc::filename_too_long;
}

}  // namespace

Path keptName(const Path& path, std::int64_t wallTime) {
  Path name = path;
  name += kStart;
  name += stampOf(wallTime);
  return name;
}

KeptFiles::~KeptFiles() {
  if (isCopyForLinks_) copy_.clear();
  for (const Path* const name : {&link_, &copy_}) {
    if (!name->empty())
      static_cast<void>(retried(system_, patience_, [&] { return system_.remove(*name); }));
  }
}

void KeptFiles::find(std::uint64_t names) {
  const Text start = startFor(path_.filename());
  const Path folder = path_.parent_path();
  const FileError unseen = system_.list(folder, [&](const Path& name) {
    const TextView text = name.native();
    if (text.size() < start.size()) return;
    const bool isKept = system_.isSameName(text.substr(0, start.size()), start) &&
                        isStamp(text.substr(start.size()));
    if (!isKept) return;
    const Path kept = folder / name;
    // Compared only where needed: not every file system tells its files apart.
    const bool isLink = names > 1 && system_.isSameFile(kept, path_);
    (isLink ? links_ : others_).push_back(kept);
  });
  static_cast<void>(unseen);  // the oldest go another time
  std::sort(others_.begin(), others_.end());
}

// Has `give` give the file a free kept name, which is then stored in `name`.
template <class Name>
FileError KeptFiles::underFreeName(Path& name, Name give) {
  const std::int64_t now = system_.wallTime();
  FileError error;
  for (std::int64_t time = now; time < now + kNames; ++time) {
    Path kept = keptName(path_, time);
    error = retried(system_, patience_, [&] { return give(kept); });
    if (!error) name = std::move(kept);
    if (error.obstacle != Obstacle::Exists) break;
  }
  return error;
}

void KeptFiles::keep() {
  // Even if it has one: that may be another process's, which removes it if its save fails.
  const FileError error =
      underFreeName(link_, [&](const Path& name) { return system_.link(path_, name); });
  if (error && links_.empty()) {
    TemporaryFile copy(system_, patience_);
    if (!copy.create(path_, OpenFor::NewAndPrivate)) static_cast<void>(fill(copy));
  }
  // Before the old content loses its place.
  static_cast<void>(system_.flushFolder(path_.parent_path()));
}

// The copy is whole before it has the kept name.
FileError KeptFiles::fill(TemporaryFile& copy) {
  system_.copyRights(path_, copy.file().handle());
  FileError error = copyContent(system_, patience_, path_, copy.file());
  if (!error) error = copy.file().flush();
  if (!error) error = copy.file().close();
  if (error) return error;
  error = underFreeName(copy_, [&](const Path& name) { return system_.move(copy.name(), name); });
  if (!error) copy.hasMoved();
  return error;
}

FileError KeptFiles::keepCopy() {
  if (copy_.empty()) {
    TemporaryFile copy(system_, patience_);
    FileError error = copy.create(path_, OpenFor::NewAndPrivate);
    // Tried again, so that one failure does not cost the old content.
    if (error && isRefused(error)) error = copy.create(path_, OpenFor::NewAndPrivate);
    if (error) {
      const bool hasLinks = !links_.empty() || !link_.empty();
      return isRefused(error) && !hasLinks ? FileError() : error;
    }
    if (const FileError unkept = fill(copy)) {
      return isGone(unkept) ? FileError() : unkept;
    }
  }
  // What the links lead to is about to change.
  if (const FileError error = dropLinks()) return error;
  const FileError error = system_.flushFolder(path_.parent_path());
  // A folder that may not be read cannot be flushed.
  return error.obstacle == Obstacle::Denied ? FileError() : error;
}

// Whether there is no file to put aside.
bool KeptFiles::isGone(const FileError& error) {
  return error.obstacle == Obstacle::Missing &&
         system_.look(path_).kind == FileFacts::Kind::Nothing;
}

FileError KeptFiles::dropLinks() {
  const auto drop = [&](const Path& name) {
    const FileError error = retried(system_, patience_, [&] { return system_.remove(name); });
    return system_.look(name).kind == FileFacts::Kind::Nothing ? FileError() : error;
  };
  for (; !links_.empty(); links_.pop_back()) {
    // Another process may have replaced the file meanwhile.
    if (!system_.isSameFile(links_.back(), path_)) continue;
    if (const FileError error = drop(links_.back())) return error;
    isCopyForLinks_ = true;
  }
  if (link_.empty()) return {};
  const FileError error = drop(link_);
  if (!error) link_.clear();
  return error;
}

void KeptFiles::stay() noexcept {
  const bool isKept = !link_.empty() || !copy_.empty();
  // The same content a second time, unless another process has replaced the file meanwhile.
  for (const Path& name : links_) {
    if (system_.isSameFile(name, link_)) static_cast<void>(system_.remove(name));
  }
  link_.clear();
  copy_.clear();
  if (!isKept) return;
  const std::size_t tooMany = others_.size() - std::min(others_.size(), kMostKeptFiles - 1);
  for (std::size_t i = 0; i < tooMany; ++i) static_cast<void>(system_.remove(others_[i]));
}

}  // namespace brennet::platform
