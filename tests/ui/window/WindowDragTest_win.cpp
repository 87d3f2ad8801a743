// The message of Windows, as its own header declares it.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

#include "ui/window/WindowDrag.h"

namespace brennet {
namespace {

static_assert(offsetof(NativeMessage, window) == offsetof(MSG, hwnd));
static_assert(offsetof(NativeMessage, message) == offsetof(MSG, message));
static_assert(offsetof(NativeMessage, wParam) == offsetof(MSG, wParam));
static_assert(offsetof(NativeMessage, lParam) == offsetof(MSG, lParam));
static_assert(sizeof(NativeMessage::lParam) == sizeof(LPARAM));
static_assert(std::is_signed_v<decltype(NativeMessage::lParam)>);

TEST(WindowDragNumbers, AreThoseOfItsHeader) {
  EXPECT_EQ(static_cast<int>(Hit::Client), HTCLIENT);
  EXPECT_EQ(static_cast<int>(Hit::Caption), HTCAPTION);
  EXPECT_EQ(static_cast<int>(Hit::Left), HTLEFT);
  EXPECT_EQ(static_cast<int>(Hit::Right), HTRIGHT);
  EXPECT_EQ(static_cast<int>(Hit::Top), HTTOP);
  EXPECT_EQ(static_cast<int>(Hit::TopLeft), HTTOPLEFT);
  EXPECT_EQ(static_cast<int>(Hit::TopRight), HTTOPRIGHT);
  EXPECT_EQ(static_cast<int>(Hit::Bottom), HTBOTTOM);
  EXPECT_EQ(static_cast<int>(Hit::BottomLeft), HTBOTTOMLEFT);
  EXPECT_EQ(static_cast<int>(Hit::BottomRight), HTBOTTOMRIGHT);
}

}  // namespace
}  // namespace brennet
