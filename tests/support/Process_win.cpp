#include <windows.h>

#include <system_error>
#include <utility>

#include "tests/support/Process.h"

namespace brennet::test {

Process::Process(const char* program, const std::vector<std::string>& arguments) {
  std::string line = "\"" + std::string(program) + "\"";
  for (const std::string& argument : arguments) line += " " + argument;
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &process) == FALSE) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
  }
  CloseHandle(process.hThread);
  handle_ = reinterpret_cast<std::intptr_t>(process.hProcess);
}

Process::Process(Process&& other) noexcept : handle_(std::exchange(other.handle_, 0)) {}

Process::~Process() {
  if (handle_ == 0) return;
  TerminateProcess(reinterpret_cast<HANDLE>(handle_), 1);
  wait();
}

int Process::wait() {
  HANDLE const process = reinterpret_cast<HANDLE>(std::exchange(handle_, 0));
  WaitForSingleObject(process, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(process, &status);
  CloseHandle(process);
  return static_cast<int>(status);
}

}  // namespace brennet::test
