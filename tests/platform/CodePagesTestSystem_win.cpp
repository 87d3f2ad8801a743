// What kernel32 is asked about code pages, and what its answers lead to: among them failures, and
// answers about a code page that not every system has.

#include <windows.h>
// gtest.h comes after windows.h, which would undo its macros.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/CodePages.h"
#include "platform/Paths.h"
#include "tests/support/StandBefore_win.h"

namespace {

// A code page with longer sequences, such as GB18030. It has only ASCII and one ideograph.
constexpr UINT kLongPage = 54936;
constexpr wchar_t kIdeograph = 0x8C22;
constexpr char kItsBytes[] = "\xD0\xBB";

struct System {
  int callsUntilFailure = -1;   // of conversions; negative: none fails
  std::vector<UINT> codePages;  // of all conversions

  bool fails(UINT codePage) {
    codePages.push_back(codePage);
    return callsUntilFailure >= 0 && callsUntilFailure-- == 0;
  }
};
System kernel;

using brennet::test::systems;

// Copies `text` and returns its length; 0 if it does not fit. With no room at all it only returns
// the length, as kernel32 does.
template <class Text, class Unit>
int give(const Text& text, Unit* out, int room) {
  const int size = static_cast<int>(text.size());
  if (room == 0) return size;
  if (size > room) return 0;
  text.copy(out, text.size());
  return size;
}

UINT WINAPI getAcp() {
  return 1252;
}

BOOL WINAPI isValid(UINT codePage) {
  static auto* const real = systems<decltype(IsValidCodePage)>("IsValidCodePage");
  return codePage == kLongPage ? TRUE : real(codePage);
}

BOOL WINAPI getInfo(UINT codePage, CPINFO* info) {
  static auto* const real = systems<decltype(GetCPInfo)>("GetCPInfo");
  if (codePage != kLongPage) return real(codePage, info);
  *info = {};
  info->MaxCharSize = 4;
  return TRUE;
}

int WINAPI toWide(UINT codePage, DWORD flags, LPCCH bytes, int size, LPWSTR out, int room) {
  static auto* const real = systems<decltype(MultiByteToWideChar)>("MultiByteToWideChar");
  if (kernel.fails(codePage)) return 0;
  if (codePage != kLongPage) return real(codePage, flags, bytes, size, out, room);
  std::wstring text;
  for (int i = 0; i < size; ++i) {
    const bool isIdeograph = bytes[i] == kItsBytes[0];
    text.push_back(isIdeograph ? kIdeograph : static_cast<wchar_t>(bytes[i]));
    if (isIdeograph) ++i;
  }
  return give(text, out, room);
}

int WINAPI toBytes(UINT codePage, DWORD flags, LPCWCH units, int size, LPSTR out, int room,
                   LPCCH byDefault, LPBOOL usedDefault) {
  static auto* const real = systems<decltype(WideCharToMultiByte)>("WideCharToMultiByte");
  if (kernel.fails(codePage)) return 0;
  if (codePage != kLongPage) {
    return real(codePage, flags, units, size, out, room, byDefault, usedDefault);
  }
  if (usedDefault != nullptr) return 0;  // as kernel32 fails for such pages
  std::string bytes;
  for (int i = 0; i < size; ++i) {
    if (units[i] == kIdeograph) {
      bytes += kItsBytes;
    } else {
      bytes.push_back(units[i] < 0x80 ? static_cast<char>(units[i]) : '?');
    }
  }
  return give(bytes, out, room);
}

}  // namespace

STAND_BEFORE(GetACP, "GetACP@0", getAcp);
STAND_BEFORE(IsValidCodePage, "IsValidCodePage@4", isValid);
STAND_BEFORE(GetCPInfo, "GetCPInfo@8", getInfo);
STAND_BEFORE(MultiByteToWideChar, "MultiByteToWideChar@24", toWide);
STAND_BEFORE(WideCharToMultiByte, "WideCharToMultiByte@32", toBytes);

namespace brennet::platform {
namespace {

class CodePagesTestSystem : public testing::Test {
 protected:
  CodePagesTestSystem() { kernel = {}; }
  ~CodePagesTestSystem() override { kernel = {}; }
};

TEST_F(CodePagesTestSystem, GiveTheAnsiCodePage) {
  EXPECT_EQ(ansiCodePage(), 1252U);
}

TEST_F(CodePagesTestSystem, ReadNarrowPathsInTheAnsiOneOfTheProcess) {
  EXPECT_EQ(pathFromNarrow("C:\\a").native(), L"C:\\a");
  EXPECT_EQ(kernel.codePages, std::vector<UINT>(2, CP_ACP));
}

TEST_F(CodePagesTestSystem, MayHaveLongSequences) {
  EXPECT_EQ(codePageShape(kLongPage), CodePageShape::Other);
  std::string bytes = ">";
  EXPECT_FALSE(encode(kLongPage, u"a\u8C22b", bytes));
  EXPECT_EQ(bytes,
            ">a\xD0\xBB"
            "b");
  std::u16string text = u"<";
  decode(kLongPage, bytes, text);
  EXPECT_EQ(text, u"<>a\u8C22b");
}

TEST_F(CodePagesTestSystem, TellOfLossesWhereKernel32DoesNot) {
  for (const std::u16string_view text : {u"\u8C2C", u"a\u8C22\u0E01", u"\u00E9?"}) {
    std::string bytes = "\xD0\xBB";
    EXPECT_TRUE(encode(kLongPage, text, bytes));
    EXPECT_NE(bytes.find('?'), std::string::npos);
  }
  std::string bytes;
  EXPECT_FALSE(encode(kLongPage, u"???", bytes)) << "question marks are not losses";
}

// Each call of a conversion fails in turn.
TEST_F(CodePagesTestSystem, GiveNoTextWhereACallFails) {
  for (const CodePage page : {1252U, kLongPage}) {
    for (const int call : {0, 1}) {
      kernel.callsUntilFailure = call;
      std::string bytes = ">";
      EXPECT_TRUE(encode(page, u"abc", bytes)) << page << ' ' << call;
      EXPECT_EQ(bytes, ">") << page << ' ' << call;
      kernel.callsUntilFailure = call;
      std::u16string text = u"<";
      decode(page, "abc", text);
      EXPECT_EQ(text, u"<") << page << ' ' << call;
    }
  }
}

}  // namespace
}  // namespace brennet::platform
