#include <windows.h>

#include "platform/Paths.h"

namespace brennet::platform {

Path pathFromUtf16(std::u16string_view name) {
  return {std::wstring(name.begin(), name.end())};
}

Path pathFromNarrow(std::string_view name) {
  const int size = static_cast<int>(name.size());
  const int length = MultiByteToWideChar(CP_ACP, 0, name.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_ACP, 0, name.data(), size, wide.data(), length);
  return {wide};
}

}  // namespace brennet::platform
