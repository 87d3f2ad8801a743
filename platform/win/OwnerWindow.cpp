#include "platform/OwnerWindow.h"

#include <windows.h>

#include <string_view>

namespace brennet::platform {
namespace {

HWND toHandle(void* window) {
  return static_cast<HWND>(window);
}

bool isOfThisThread(HWND window) {
  return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

// The player does not work in every window of the thread.
bool isOwner(HWND window) {
  if (IsWindowVisible(window) == FALSE || !isOfThisThread(window)) return false;
  constexpr int kNameUnits = 32;
  wchar_t name[kNameUnits] = {};
  GetClassNameW(window, name, kNameUnits);
  if (std::wstring_view(name) == L"tooltips_class32") return false;
  return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) == 0;
}

BOOL CALLBACK stopAtOwner(HWND window, LPARAM found) {
  if (!isOwner(window)) return TRUE;
  // Windows hands the pointer on as a number.
  *reinterpret_cast<HWND*>(found) = window;  // NOLINT(performance-no-int-to-ptr)
  return FALSE;
}

HWND findOwner() {
  HWND found = GetActiveWindow();
  if (found != nullptr && isOfThisThread(found)) return found;
  found = nullptr;
  EnumWindows(stopAtOwner, reinterpret_cast<LPARAM>(&found));
  return found;
}

HWND withoutChildren(HWND window) {
  while (window != nullptr && (GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0) {
    window = GetParent(window);
  }
  return window;
}

HWND rootOf(HWND window) {
  HWND root = window;
  for (HWND parent = root; parent != nullptr; parent = GetParent(parent)) root = parent;
  return root;
}

}  // namespace

OwnerWindows disableOwnerWindows() {
  OwnerWindows windows;
  HWND const owner = withoutChildren(findOwner());
  HWND const root = rootOf(owner);
  HWND const popup = owner == nullptr ? nullptr : GetLastActivePopup(owner);
  if (root != nullptr && IsWindowEnabled(root) != FALSE && root != popup) {
    windows.root = root;
    if (GetCapture() == root) ReleaseCapture();
    EnableWindow(root, FALSE);
  }
  windows.popup = popup;
  if (popup != nullptr && popup != GetDesktopWindow() && IsWindowEnabled(popup) != FALSE) {
    EnableWindow(popup, FALSE);
    windows.isPopupDisabled = true;
  }
  return windows;
}

std::optional<WindowFrame> ownerFrame() {
  // Not its root: that may be elsewhere, or be a window that is never visible.
  HWND const owner = withoutChildren(findOwner());
  RECT frame = {};
  if (owner == nullptr || IsIconic(owner) != FALSE || GetWindowRect(owner, &frame) == FALSE) {
    return std::nullopt;
  }
  return WindowFrame{.left = frame.left,
                     .top = frame.top,
                     .width = frame.right - frame.left,
                     .height = frame.bottom - frame.top};
}

void enableOwnerWindows(const OwnerWindows& windows) {
  if (windows.root != nullptr) {
    EnableWindow(toHandle(windows.root), TRUE);
    SetActiveWindow(toHandle(windows.root));
  }
  if (windows.isPopupDisabled) EnableWindow(toHandle(windows.popup), TRUE);
  if (windows.popup != nullptr) SetActiveWindow(toHandle(windows.popup));
}

}  // namespace brennet::platform
