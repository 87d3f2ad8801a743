#include <windows.h>
// sddl.h needs windows.h first.
#include <sddl.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/ScopedRegistry.h"

namespace brennet::test {
namespace {

constexpr wchar_t kKey[] = L"Software\\Tollamere";

std::wstring wide(std::u16string_view text) {
  return {text.begin(), text.end()};
}
std::u16string utf16(const std::wstring& text) {
  return {text.begin(), text.end()};
}

void require(LSTATUS status, const char* what) {
  if (status != ERROR_SUCCESS) throw std::runtime_error(what + (": " + std::to_string(status)));
}

// A key that is closed when it goes out of scope.
class OpenKey {
 public:
  ~OpenKey() { RegCloseKey(key_); }
  OpenKey(const std::wstring& path, REGSAM rights, bool create = false) {
    const LSTATUS status = create
                               ? RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0,
                                                 rights, nullptr, &key_, nullptr)
                               : RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, rights, &key_);
    if (status != ERROR_FILE_NOT_FOUND) require(status, "a key cannot be opened");
  }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  [[nodiscard]] HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

constexpr DWORD kLongestName = 16384;
constexpr DWORD kLongestValue = 1U << 20U;

void addValues(const OpenKey& key, const std::u16string& path, platform::RegFile& content) {
  std::vector<wchar_t> name(kLongestName);
  std::string data(kLongestValue, '\0');
  for (DWORD i = 0;; ++i) {
    DWORD nameLength = kLongestName;
    DWORD size = kLongestValue;
    DWORD type = REG_NONE;
    const LSTATUS status = RegEnumValueW(key.get(), i, name.data(), &nameLength, nullptr, &type,
                                         reinterpret_cast<BYTE*>(data.data()), &size);
    if (status == ERROR_NO_MORE_ITEMS) return;
    require(status, "a value cannot be read");
    content.set(path, utf16({name.data(), nameLength}), {type, data.substr(0, size)});
  }
}

void addKey(const std::wstring& path, platform::RegFile& content) {
  const OpenKey key(path, KEY_READ);
  if (key.get() == nullptr) return;
  const std::u16string fullPath = below(utf16(path));
  content.createKey(fullPath);
  addValues(key, fullPath, content);
  std::vector<wchar_t> name(kLongestName);
  for (DWORD i = 0;; ++i) {
    DWORD length = kLongestName;
    const LSTATUS status =
        RegEnumKeyExW(key.get(), i, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
    if (status == ERROR_NO_MORE_ITEMS) return;
    require(status, "a key cannot be listed");
    addKey(path + L"\\" + std::wstring(name.data(), length), content);
  }
}

// Gives a key the rights in `description`.
void setRights(const std::wstring& path, const wchar_t* description) {
  const OpenKey key(path, WRITE_DAC);
  PSECURITY_DESCRIPTOR rights = nullptr;
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(description, SDDL_REVISION_1, &rights,
                                                           nullptr) == FALSE) {
    throw std::runtime_error("the rights cannot be made");
  }
  const LSTATUS status = RegSetKeySecurity(key.get(), DACL_SECURITY_INFORMATION, rights);
  LocalFree(rights);
  require(status, "the rights cannot be set");
}

}  // namespace

ScopedRegistry::ScopedRegistry() {
  if (OpenKey(kKey, KEY_READ).get() == nullptr) return;
  throw std::runtime_error("this user has DotA 7 settings, which the test would change");
}

// Besides the settings, removes what unfinished runs of the dialog left behind: the next test has
// the same registry, and would get back values that it never had.
ScopedRegistry::~ScopedRegistry() {
  RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
  namespace fs = std::filesystem;
  std::error_code error;
  std::vector<fs::path> journals;
  const fs::path folder = fs::temp_directory_path(error) / "brennet-kept";
  for (fs::directory_iterator file(folder, error), end; !error && file != end;
       file.increment(error)) {
    if (file->path().filename().native().starts_with(L"dota7-")) journals.push_back(file->path());
  }
  for (const fs::path& journal : journals) fs::remove(journal, error);
}

platform::RegFile ScopedRegistry::content() const {
  platform::RegFile content;
  addKey(kKey, content);
  return content;
}

void ScopedRegistry::createKey(std::u16string_view path) {
  const OpenKey key(wide(path), KEY_ALL_ACCESS, true);
}

void ScopedRegistry::set(std::u16string_view path, std::u16string_view name,
                         const platform::RegistryValue& value) {
  const OpenKey key(wide(path), KEY_ALL_ACCESS, true);
  require(RegSetValueExW(key.get(), wide(name).c_str(), 0, value.type,
                         reinterpret_cast<const BYTE*>(value.data.data()),
                         static_cast<DWORD>(value.data.size())),
          "a value cannot be set");
}

void ScopedRegistry::removeKey(std::u16string_view path) {
  require(RegDeleteTreeW(HKEY_CURRENT_USER, wide(path).c_str()), "a key cannot be removed");
}

void ScopedRegistry::denyWriting(std::u16string_view path) {
  // Everybody may read the key, change its rights and delete it.
  setRights(wide(path), L"D:P(A;;KRWDSD;;;WD)");
}

void ScopedRegistry::allowWriting(std::u16string_view path) {
  setRights(wide(path), L"D:P(A;;KA;;;WD)");
}

}  // namespace brennet::test
