#include <windows.h>

#include <map>
#include <string>

#include "tests/faults/soak/Disturber.h"

namespace brennet::test {
namespace {

constexpr DWORD kHold = 50;   // milliseconds
constexpr DWORD kPause = 10;  // between two looks

// Whether there is another file than before under the name.
bool isNew(std::map<std::wstring, FILETIME>& known, const WIN32_FIND_DATAW& data) {
  FILETIME& time = known[data.cFileName];
  const bool isKnown = CompareFileTime(&time, &data.ftLastWriteTime) == 0;
  time = data.ftLastWriteTime;
  return !isKnown && (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

void scan(const std::filesystem::path& file) {
  HANDLE const opened = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return;
  Sleep(kHold);
  CloseHandle(opened);
}

}  // namespace

void disturb(const std::filesystem::path& folder, const std::filesystem::path& /*file*/) {
  std::map<std::wstring, FILETIME> known;
  while (true) {
    WIN32_FIND_DATAW data{};
    HANDLE const search = FindFirstFileW((folder / L"*").c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) {
      do {
        if (isNew(known, data)) scan(folder / data.cFileName);
      } while (FindNextFileW(search, &data) != FALSE);
      FindClose(search);
    }
    Sleep(kPause);
  }
}

}  // namespace brennet::test
