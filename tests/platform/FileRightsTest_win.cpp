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
#include "platform/PrivateFile.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using test::readBytes;
using test::TempFolder;
using test::writeBytes;

constexpr SECURITY_INFORMATION kList = DACL_SECURITY_INFORMATION;

// The list as text (SDDL).
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

TEST(FileRightsAccessList, OfWhatIsPrivateIsNotThatOfTheFolder) {
  const TempFolder folder;
  writeBytes(folder / "usual", "");
  EXPECT_NE(privateListIn(folder), L"(unknown)");
  EXPECT_NE(privateListIn(folder), listOf(folder / "usual"));
}

TEST(FileRightsAccessList, OfAFileStaysWhenItIsReplaced) {
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

TEST(FileRightsAccessList, OfANewFileIsThatOfItsFolder) {
  const TempFolder folder;
  writeBytes(folder / "usual", "");
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(listOf(folder / "f"), listOf(folder / "usual"));
}

// Makes a folder with the access list `list` (SDDL).
void makeFolder(const Path& path, const wchar_t* list) {
  SECURITY_ATTRIBUTES attributes{sizeof(attributes), nullptr, FALSE};
  ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW(
                list, SDDL_REVISION_1, &attributes.lpSecurityDescriptor, nullptr),
            FALSE);
  EXPECT_NE(CreateDirectoryW(path.c_str(), &attributes), FALSE);
  LocalFree(attributes.lpSecurityDescriptor);
}

TEST(FileRightsAccessList, OfAPrivateFolderOpensItToNobodyElse) {
  struct Row {
    const wchar_t* list;
    Obstacle obstacle;
  };
  // WD: everybody; SY: the system; BA: the administrators.
  constexpr Row kRows[] = {
      {L"D:P(A;OICI;FA;;;WD)", Obstacle::Denied},
      {L"D:P(A;;FR;;;WD)(A;;FA;;;BA)", Obstacle::Denied},
      {L"D:P(A;;FA;;;SY)(A;;FA;;;BA)", Obstacle::None},
      {L"O:BAD:P(A;;FA;;;SY)(A;;FA;;;BA)", Obstacle::None},
      {L"O:BAD:P(A;;FA;;;BA)(A;;FR;;;WD)", Obstacle::Denied},
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

TEST(FileRightsAccessList, OfAPrivateFileIsTheUsersOwn) {
  const TempFolder folder;
  PrivateFile file;
  ASSERT_TRUE(file.take("brennet-test-rights.undo"));
  EXPECT_FALSE(file.write("one"));
  EXPECT_FALSE(file.write("two"));
  EXPECT_EQ(listOf(operatingSystem().privateFolder() / "brennet-test-rights.undo"),
            privateListIn(folder));
  EXPECT_TRUE(file.clear());
}

TEST(FileRightsOwner, OfWhatIsPrivateIsTheUser) {
  const TempFolder folder;
  ASSERT_FALSE(operatingSystem().createPrivateFolder(folder / "own"));
  OpenFile file(operatingSystem());
  ASSERT_FALSE(file.open(folder / "own" / "f", OpenFor::NewAndPrivate));
  HANDLE token = nullptr;
  ASSERT_NE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token), FALSE);
  alignas(TOKEN_USER) BYTE user[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE] = {};
  DWORD size = 0;
  EXPECT_NE(GetTokenInformation(token, TokenUser, user, sizeof(user), &size), FALSE);
  CloseHandle(token);
  for (const Path& path : {folder / "own", folder / "own" / "f"}) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    PSID owner = nullptr;
    ASSERT_EQ(GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION,
                                    &owner, nullptr, nullptr, nullptr, &descriptor),
              DWORD{ERROR_SUCCESS});
    EXPECT_NE(EqualSid(owner, reinterpret_cast<TOKEN_USER*>(user)->User.Sid), FALSE) << path;
    LocalFree(descriptor);
  }
}

TEST(FileRightsSecondName, IsKept) {
  const TempFolder folder;
  writeBytes(folder / "f", "a longer old content");
  ASSERT_FALSE(operatingSystem().link(folder / "f", folder / "second"));
  EXPECT_FALSE(replaceFile(folder / "f", "new"));
  EXPECT_EQ(readBytes(folder / "second"), "new");
  EXPECT_FALSE(pathExists(operatingSystem().privateFolder()));
}

}  // namespace
}  // namespace brennet::platform
