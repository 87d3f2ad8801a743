#include "platform/TemporaryNames.h"

#include <algorithm>
#include <chrono>

namespace brennet::platform {
namespace {

namespace fs = std::filesystem;
using Name = Path::string_type;
using NameView = std::basic_string_view<Path::value_type>;

constexpr auto kOld = std::chrono::hours(1);

const Name& ending() {
  static const Name text = Path(".tmp").native();
  return text;
}

bool isNumber(NameView text) {
  const auto isDigit = [](Path::value_type unit) { return unit >= '0' && unit <= '9'; };
  return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

// Whether `name` is what temporaryName makes of the file name `file`.
bool isTemporaryNameOf(NameView file, NameView name) {
  if (!name.starts_with(file) || !name.ends_with(ending())) return false;
  if (name.size() <= file.size() + ending().size()) return false;
  NameView numbers = name.substr(file.size(), name.size() - file.size() - ending().size());
  if (numbers.front() != '.') return false;
  numbers.remove_prefix(1);
  const std::size_t dash = numbers.find('-');
  return dash != NameView::npos && isNumber(numbers.substr(0, dash)) &&
         isNumber(numbers.substr(dash + 1));
}

bool isOldFile(const fs::directory_entry& entry) {
  std::error_code error;
  if (!fs::is_regular_file(entry.symlink_status(error)) || error) return false;
  const fs::file_time_type written = entry.last_write_time(error);
  return !error && fs::file_time_type::clock::now() - written >= kOld;
}

}  // namespace

Path temporaryName(const Path& path, unsigned long process, int number) {
  Path name = path;
  name += "." + std::to_string(process) + "-" + std::to_string(number);
  name += ending();
  return name;
}

void removeLeftovers(const Path& path) {
  const Name file = path.filename().native();
  const Path folder = path.has_parent_path() ? path.parent_path() : Path(".");
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  while (!error && entry != fs::directory_iterator()) {
    const bool isLeftover =
        isTemporaryNameOf(file, entry->path().filename().native()) && isOldFile(*entry);
    std::error_code unused;
    if (isLeftover) fs::remove(entry->path(), unused);
    entry.increment(error);
  }
}

}  // namespace brennet::platform
