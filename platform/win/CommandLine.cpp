#include "platform/CommandLine.h"

#include <windows.h>

#include <shellapi.h>

#include <string_view>

namespace brennet::platform {
namespace {

std::string utf8Of(std::wstring_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), length, nullptr, nullptr);
  return bytes;
}

}  // namespace

std::vector<std::string> utf8Arguments(int /*argc*/, char** /*argv*/) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  if (wide == nullptr) return arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(utf8Of(wide[i]));
  LocalFree(wide);
  return arguments;
}

unsigned showOnConsole(unsigned codePage) {
  const UINT before = GetConsoleOutputCP();
  return before != 0 && SetConsoleOutputCP(codePage) != 0 ? before : 0;
}

}  // namespace brennet::platform
