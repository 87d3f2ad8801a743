// The host of README.md, which begins with its includes, in the place that it speaks of. The
// working folder holds what is to lie there.

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <cwchar>

#include "readme_includes.h"

namespace {

void copyTo(const wchar_t* folder, const wchar_t* pattern) {
  CreateDirectoryW(folder, nullptr);
  WIN32_FIND_DATAW file;
  const HANDLE search = FindFirstFileW(pattern, &file);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    wchar_t target[MAX_PATH] = L"";
    std::wcscpy(target, folder);
    std::wcscat(target, L"\\");
    std::wcscat(target, file.cFileName);
    CopyFileW(file.cFileName, target, FALSE);
  } while (FindNextFileW(search, &file) != FALSE);
  FindClose(search);
}

}  // namespace

int main() {
  copyTo(L"C:\\Platform", L"*.dll");
  copyTo(L"C:\\Platform\\data", L"Tollamere.reg");
  copyTo(L"C:\\Platform\\settings", L"KeyInfo.xml");
#include "readme_body.h"
  std::printf("save time: %lu, feature: %s\n",
              static_cast<unsigned long>(brennet->GetLastSaveTime()),
              (block.flags & 0x80000000U) != 0 ? "on" : "off");
  return 0;
}
