#pragma once

#include <string>
#include <string_view>
#include <system_error>

// What the file functions of this system are put together from.
namespace brennet::platform {

// Virus scanners and indexers hold a new file for a moment; a file that is to be replaced may be
// held as well. So much patience there is at each step.
inline constexpr int kTries = 10;

// Waits between two of them: 20 milliseconds.
void pause();

// An error of the system as GetLastError gives it (DWORD); 0 is none.
using SystemError = unsigned long;

[[nodiscard]] std::error_code errorOf(SystemError code);
[[nodiscard]] SystemError lastCode();
[[nodiscard]] std::error_code lastError();

// Somebody else has the file open just now.
[[nodiscard]] bool isHeld(SystemError error);

// A file that is held, or one that is about to be deleted or moved: that one denies access too.
[[nodiscard]] bool mayPass(SystemError error);

// Calls `operation` until it succeeds or fails for good; 0 or the error. An operation is a call of
// the system or returns as one does: not 0, or 0 with the error in GetLastError.
template <class Operation, class Condition = bool (*)(SystemError error)>
SystemError retried(Operation operation, Condition isWorthIt = mayPass) {
  for (int i = 1;; ++i) {
    if (operation()) return 0;
    const SystemError error = lastCode();
    if (i == kTries || !isWorthIt(error)) return error;
    pause();
  }
}

// A handle of the system (HANDLE).
using FileHandle = void*;

// A handle that is closed when it goes out of scope.
class OpenFile {
 public:
  OpenFile() = default;
  OpenFile(const std::wstring& name, unsigned long access, unsigned long sharing,
           unsigned long creation) {
    open(name, access, sharing, creation);
  }
  ~OpenFile() { static_cast<void>(closeNow()); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  // The arguments are CreateFileW's. Whether the file is open then; if not, GetLastError tells why.
  bool open(const std::wstring& name, unsigned long access, unsigned long sharing,
            unsigned long creation);

  [[nodiscard]] bool isOpen() const { return handle_ != nullptr; }
  [[nodiscard]] FileHandle get() const { return handle_; }

  // Has the file removed when it is closed, under whatever name; opened with DELETE access. Whether
  // that works.
  bool removeOnClose();

  // Closing may be where a failed write shows.
  std::error_code closeNow();

 private:
  FileHandle handle_ = nullptr;
};

// Makes `bytes` what the open file holds, to its end also where it grows meanwhile; after an error
// they are a part of it.
[[nodiscard]] std::error_code readAll(FileHandle file, std::string& bytes);
[[nodiscard]] std::error_code writeAll(FileHandle file, std::string_view bytes);

// Whether anything stands at `path`, and whether it is a file.
[[nodiscard]] bool exists(const std::wstring& path);
[[nodiscard]] bool isFile(const std::wstring& path);

// Gives the file `from` the name `to`, which must be free; 0 or the error.
[[nodiscard]] SystemError moveTo(const std::wstring& from, const std::wstring& to);

void removeFile(const std::wstring& path);

}  // namespace brennet::platform
