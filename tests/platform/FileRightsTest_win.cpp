// The access list of a file that is replaced, and that of what is private.

#include <windows.h>
// aclapi.h and sddl.h need windows.h first.
#include <aclapi.h>
#include <gtest/gtest.h>
#include <sddl.h>

#include <string>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "platform/OpenFile.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

constexpr SECURITY_INFORMATION kList = DACL_SECURITY_INFORMATION;

// The list in the system's own words.
std::wstring listOf(const Path& path) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  wchar_t* text = nullptr;
  if (GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, kList, nullptr, nullptr, nullptr, nullptr,
                            &descriptor) != ERROR_SUCCESS ||
      ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1, kList,
                                                           &text, nullptr) == FALSE) {
    return L"(unknown)";
  }
  std::wstring list = text;
  LocalFree(text);
  LocalFree(descriptor);
  return list;
}

std::wstring privateListIn(const TempFolder& folder) {
  const Path path = folder / "private";
  OpenFile file(operatingSystem());
  EXPECT_FALSE(file.open(path, OpenFor::NewAndPrivate));
  EXPECT_FALSE(file.close());
  const std::wstring list = listOf(path);
  EXPECT_FALSE(operatingSystem().remove(path));
  return list;
}

TEST(TheAccessList, OfWhatIsPrivateIsNotThatOfTheFolder) {
  const TempFolder folder;
  writeBytes(folder / "usual", "");
  EXPECT_NE(privateListIn(folder), L"(unknown)");
  EXPECT_NE(privateListIn(folder), listOf(folder / "usual"));
}

TEST(TheAccessList, OfAFileStaysWhenItIsReplaced) {
  const TempFolder folder;
  writeBytes(folder / "f", "old");
  const std::wstring usual = listOf(folder / "f");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(listOf(folder / "f"), usual);

  OpenFile file(operatingSystem());
  ASSERT_FALSE(file.open(folder / "g", OpenFor::NewAndPrivate));
  EXPECT_FALSE(file.close());
  const std::wstring own = listOf(folder / "g");
  EXPECT_FALSE(replaceFile(folder / "g", "new"));
  EXPECT_EQ(listOf(folder / "g"), own);
  EXPECT_EQ(readBytes(folder / "g"), "new");
}

TEST(TheAccessList, OfANewFileIsThatOfItsFolder) {
  const TempFolder folder;
  writeBytes(folder / "usual", "");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(listOf(folder / "f"), listOf(folder / "usual"));
}

// A folder with an access list of the test's own, in the system's words.
void makeFolder(const Path& path, const wchar_t* list) {
  SECURITY_ATTRIBUTES attributes{sizeof(attributes), nullptr, FALSE};
  ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW(
                list, SDDL_REVISION_1, &attributes.lpSecurityDescriptor, nullptr),
            FALSE);
  EXPECT_NE(CreateDirectoryW(path.c_str(), &attributes), FALSE);
  LocalFree(attributes.lpSecurityDescriptor);
}

TEST(TheAccessList, OfAPrivateFolderOpensItToNobodyElse) {
  struct Row {
    const wchar_t* list;
    Obstacle obstacle;
  };
  // WD: everybody; SY: the system; BA: the administrators.
  constexpr Row kRows[] = {
      {L"D:P(A;OICI;FA;;;WD)", Obstacle::Denied},
      {L"D:P(A;;FR;;;WD)(A;;FA;;;BA)", Obstacle::Denied},
      {L"D:P(A;;FA;;;SY)(A;;FA;;;BA)", Obstacle::None},
  };
  for (const Row& row : kRows) {
    const TempFolder folder;
    makeFolder(folder / "own", row.list);
    EXPECT_EQ(operatingSystem().createPrivateFolder(folder / "own").obstacle, row.obstacle)
        << listOf(folder / "own").c_str();
  }
  const TempFolder folder;
  EXPECT_FALSE(operatingSystem().createPrivateFolder(folder / "own"));
  EXPECT_FALSE(operatingSystem().createPrivateFolder(folder / "own")) << "as it was made";
}

TEST(ASecondName, IsKept) {
  const TempFolder folder;
  writeBytes(folder / "f", "a longer old content");
  ASSERT_FALSE(operatingSystem().link(folder / "f", folder / "second"));
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "second"), "new");
  EXPECT_FALSE(pathExists(operatingSystem().privateFolder()));
}

}  // namespace
}  // namespace brennet::platform
