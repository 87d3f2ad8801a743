#include "platform/KeptFiles.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/OpenFile.h"
#include "platform/Patience.h"

namespace brennet::platform {
namespace {

constexpr char kStart[] = ".kept-";
constexpr std::string_view kStampForm = "00000000-000000";  // a zero for each digit
constexpr int kNames = 60;  // as many seconds to look for a free name

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

// The oldest kept files of `path` that are too many when one more comes.
std::vector<Path> surplus(FileSystem& system, const Path& path) {
  const Text start = startFor(path.filename());
  const Path folder = path.parent_path();
  std::vector<Path> names;
  system.list(folder, [&](const Path& name) {
    const TextView text = name.native();
    if (text.size() < start.size()) return;
    const bool isKept = system.isSameName(text.substr(0, start.size()), start) &&
                        isStamp(text.substr(start.size()));
    if (isKept) names.push_back(folder / name);
  });
  std::sort(names.begin(), names.end());
  names.resize(names.size() - std::min(names.size(), kMostKeptFiles - 1));
  return names;
}

// Copies the file; Exists where the name is taken.
FileError copyFile(FileSystem& system, const Path& path, std::string_view content,
                   const Path& copy) {
  OpenFile file(system);
  if (const FileError error = file.open(copy, OpenFor::NewAndPrivate)) return error;
  system.copyRights(path, file.handle());
  FileError error = file.writeAll(content);
  if (!error) error = file.flush();
  const FileError closing = file.close();
  if (!error) error = closing;
  if (error) static_cast<void>(retried(system, [&] { return system.remove(copy); }));
  return error;
}

}  // namespace

Path keptName(const Path& path, std::int64_t wallTime) {
  Path name = path;
  name += kStart;
  name += stampOf(wallTime);
  return name;
}

Path keepFile(FileSystem& system, const Path& path) {
  std::string content;
  OpenFile file(system);
  FileError unread = retried(system, [&] { return file.open(path, OpenFor::Reading); });
  if (unread.obstacle == Obstacle::Missing) return {};
  if (!unread) unread = file.readAll(content, kAnySize);
  static_cast<void>(file.close());

  const std::vector<Path> tooMany = surplus(system, path);
  const std::int64_t now = system.wallTime();
  for (std::int64_t time = now; time < now + kNames; ++time) {
    Path kept = keptName(path, time);
    const FileError error =
        unread ? system.link(path, kept) : copyFile(system, path, content, kept);
    if (error.obstacle == Obstacle::Exists) continue;
    if (error) return {};
    for (const Path& old : tooMany) static_cast<void>(system.remove(old));
    return kept;
  }
  return {};
}

}  // namespace brennet::platform
