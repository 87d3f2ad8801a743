#include "SettingsFile.h"

#include "Kernel32.h"
#include "Report.h"

namespace {

// The second scheme is the current one.
constexpr char kBefore[] =
    "<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n"
    "<KeyInfo enable=\"1\" index=\"1\"><LastSaveTime>77</LastSaveTime><KeyInfo_1>";
constexpr char kBehind[] = "</KeyInfo_1></KeyInfo>\r\n";

// A file that closes itself.
class OpenFile {
 public:
  OpenFile(const wchar_t* path, unsigned access, unsigned disposition)
      : handle_(CreateFileW(path, access, 0, nullptr, disposition, 0, nullptr)) {
    require(handle_ != reinterpret_cast<Handle>(-1), kNoSettingsFile);
  }
  ~OpenFile() { CloseHandle(handle_); }

  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] Handle handle() const { return handle_; }

 private:
  Handle handle_;
};

void write(const OpenFile& file, const char* text) {
  unsigned size = 0;
  while (text[size] != '\0') ++size;
  unsigned done = 0;
  const int written = WriteFile(file.handle(), text, size, &done, nullptr);
  require(written != 0 && done == size, kNoSettingsFile);
}

}  // namespace

SettingsFile::SettingsFile(const char* elements) {
  wchar_t folder[261];
  require(GetTempPathW(261, folder) != 0, kNoSettingsFile);
  require(GetTempFileNameW(folder, L"key", 0, path_) != 0, kNoSettingsFile);
  const OpenFile file(path_, kGenericWrite, kCreateAlways);
  write(file, kBefore);
  write(file, elements);
  write(file, kBehind);
}

SettingsFile::~SettingsFile() {
  DeleteFileW(path_);
}

unsigned SettingsFile::checksum() const {
  const OpenFile file(path_, kGenericRead, kOpenExisting);
  unsigned sum = 2166136261;
  unsigned char bytes[512];
  unsigned done = 0;
  do {
    require(ReadFile(file.handle(), bytes, sizeof(bytes), &done, nullptr) != 0, kNoSettingsFile);
    for (unsigned i = 0; i < done; ++i) sum = (sum ^ bytes[i]) * 16777619;
  } while (done != 0);
  return sum;
}
