// What an attacker puts where it may be taken for something else, built as a DLL and as a program.
// It appends its own path to planted.log in the current folder.

#include <windows.h>

namespace {

void tellOf(HMODULE self) {
  wchar_t path[MAX_PATH];
  const DWORD length = GetModuleFileNameW(self, path, MAX_PATH);
  const HANDLE log = CreateFileW(L"planted.log", FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                 OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (log == INVALID_HANDLE_VALUE) return;
  DWORD written = 0;
  WriteFile(log, path, length * sizeof(wchar_t), &written, nullptr);
  CloseHandle(log);
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) tellOf(self);
  return TRUE;
}

int main() {
  tellOf(nullptr);
}
