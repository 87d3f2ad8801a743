#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/World.h"

namespace brennet::test {
namespace {

// The variables of Unix go as well, because Wine passes them on.
constexpr std::wstring_view kGone[] = {L"LANG", L"LANGUAGE", L"TZ", L"BRENNET_REGISTRY"};
constexpr std::wstring_view kGoneBeginnings[] = {L"QT_", L"LC_", L"XDG_", L"FONTCONFIG_"};

bool goes(std::wstring_view name) {
  return std::find(std::begin(kGone), std::end(kGone), name) != std::end(kGone) ||
         std::any_of(std::begin(kGoneBeginnings), std::end(kGoneBeginnings),
                     [&](std::wstring_view beginning) { return name.starts_with(beginning); });
}

}  // namespace

void leaveTheCallersWorld() {
  std::vector<std::wstring> gone;
  wchar_t* const block = GetEnvironmentStringsW();
  if (block == nullptr) return;
  for (std::wstring_view text = block; !text.empty(); text = text.data() + text.size() + 1) {
    // The variables for the current folders of drives begin with "=".
    const std::wstring_view name = text.substr(0, text.find(L'=', 1));
    if (goes(name)) gone.emplace_back(name);
  }
  FreeEnvironmentStringsW(block);
  for (const std::wstring& name : gone) _wputenv_s(name.c_str(), L"");
}

}  // namespace brennet::test
