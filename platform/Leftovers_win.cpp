#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Leftovers.h"
#include "platform/TemporaryNames.h"

namespace brennet::platform {
namespace {

constexpr std::uint64_t kOld = 3600ULL * 10'000'000ULL;  // an hour, as times of files are counted

// Ends a search when it goes out of scope.
class Search {
 public:
  Search(const std::wstring& pattern, WIN32_FIND_DATAW& first)
      : handle_(FindFirstFileW(pattern.c_str(), &first)) {}
  ~Search() {
    if (isOpen()) FindClose(handle_);
  }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;

  [[nodiscard]] bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  bool next(WIN32_FIND_DATAW& data) const { return FindNextFileW(handle_, &data) != FALSE; }

 private:
  HANDLE handle_;
};

std::uint64_t ticks(const FILETIME& time) {
  return (std::uint64_t{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
}

bool isOldFile(const WIN32_FIND_DATAW& data) {
  FILETIME now{};
  GetSystemTimeAsFileTime(&now);
  constexpr DWORD kNoFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  return (data.dwFileAttributes & kNoFile) == 0 && ticks(now) >= ticks(data.ftLastWriteTime) + kOld;
}

// Names have no case here.
bool isTemporaryName(std::wstring_view name, std::wstring_view file) {
  if (name.size() < file.size()) return false;
  const int size = static_cast<int>(file.size());
  return CompareStringOrdinal(name.data(), size, file.data(), size, TRUE) == CSTR_EQUAL &&
         isTemporaryEnding(name.substr(file.size()));
}

}  // namespace

void removeLeftovers(const Path& path) {
  const std::wstring file = path.filename().native();
  WIN32_FIND_DATAW data{};
  const Search search(path.native() + L".brennet-*.tmp", data);
  if (!search.isOpen()) return;
  do {
    if (!isTemporaryName(data.cFileName, file) || !isOldFile(data)) continue;
    DeleteFileW((path.parent_path() / data.cFileName).c_str());
  } while (search.next(data));
}

}  // namespace brennet::platform
