#include <windows.h>

#include <string>

#include "platform/Registry.h"

namespace brennet::platform {
namespace {

std::wstring wide(std::u16string_view text) {
  return {text.begin(), text.end()};
}

}  // namespace

int compareRegistryNames(std::u16string_view a, std::u16string_view b) {
  const std::wstring first = wide(a);
  const std::wstring second = wide(b);
  const int order = CompareStringOrdinal(first.data(), static_cast<int>(first.size()),
                                         second.data(), static_cast<int>(second.size()), TRUE);
  return order - CSTR_EQUAL;
}

std::string registryIdentity() {
  return {};
}

struct RegistryKey::Body {
  HKEY handle;
};

RegistryKey::RegistryKey(std::u16string_view path) {
  HKEY handle = nullptr;
  const LSTATUS status =
      RegOpenKeyExW(HKEY_CURRENT_USER, wide(path).c_str(), 0, KEY_ALL_ACCESS, &handle);
  if (status == ERROR_SUCCESS) body_ = std::make_unique<Body>(Body{handle});
}

RegistryKey::~RegistryKey() {
  if (isOpen()) RegCloseKey(body_->handle);
}

RegistryKey::Reading RegistryKey::read(std::u16string_view name) const {
  if (!isOpen()) return {};
  const std::wstring wideName = wide(name);
  constexpr DWORD kUsualSize = 512;
  DWORD type = REG_NONE;
  DWORD size = kUsualSize;
  std::string data(size, '\0');
  // Repeated as long as the value grows between two calls.
  LSTATUS status = ERROR_MORE_DATA;
  while (status == ERROR_MORE_DATA) {
    data.resize(size);
    status = RegQueryValueExW(body_->handle, wideName.c_str(), nullptr, &type,
                              reinterpret_cast<BYTE*>(data.data()), &size);
  }
  if (status == ERROR_FILE_NOT_FOUND) return {true, std::nullopt};
  if (status != ERROR_SUCCESS) return {};
  data.resize(size);
  return {true, RegistryValue{type, std::move(data)}};
}

bool RegistryKey::write(std::u16string_view name, const RegistryValue& value) {
  if (!isOpen()) return false;
  // The system adds a zero to a text that does not end in one, if a zero follows it in memory.
  const std::string data = value.data + "\xFF\xFF\xFF";
  return RegSetValueExW(body_->handle, wide(name).c_str(), 0, value.type,
                        reinterpret_cast<const BYTE*>(data.data()),
                        static_cast<DWORD>(value.data.size())) == ERROR_SUCCESS;
}

bool RegistryKey::remove(std::u16string_view name) {
  if (!isOpen()) return false;
  const LSTATUS status = RegDeleteValueW(body_->handle, wide(name).c_str());
  return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

bool RegistryKey::flush() {
  return isOpen() && RegFlushKey(body_->handle) == ERROR_SUCCESS;
}

}  // namespace brennet::platform
