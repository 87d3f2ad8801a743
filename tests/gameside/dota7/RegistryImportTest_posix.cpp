// The import where the registry is a file.

#include "gameside/dota7/RegistryImport.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/support/TestData.h"

namespace brennet {
namespace {

using namespace std::string_literals;
using platform::RegFile;
using test::readBytes;
using test::ScopedRegistry;
using test::TempFolder;
using test::utf8;
using test::writeBytes;

const std::string kSample = test::sampleData("Tollamere.reg");

TEST(RegistryImportFromAFile, GivesTheRegistryTheSample) {
  for (const std::string& name : {"plain"s, "two words"s, utf8(u8"\u9B54\u517D \u6539\u952E")}) {
    const ScopedRegistry registry;
    const TempFolder parent;
    const std::filesystem::path folder = parent / name;
    std::filesystem::create_directory(folder);
    writeBytes(folder / "Tollamere.reg", readBytes(kSample));
    EXPECT_TRUE(importDefaultRegistry((folder / "").u16string()));
    RegFile expected;
    EXPECT_TRUE(expected.merge(readBytes(kSample)));
    EXPECT_EQ(registry.content(), expected);

    Dota7KeyInfoManager manager;
    manager.settings().load();
    EXPECT_EQ(manager.settings().keyText(*findDota7KeyField(u"edtHACSkill_3")), u"ALT + Q");
    EXPECT_EQ(manager.settings().phrase(*findDota7Phrase(u"edt_SQuickChatString7")),
              u"\u8C22\u8C22");
  }
}

TEST(RegistryImportFromAFile, FindsTheFileWithASeparatorAtTheEndOfTheFolderOrWithout) {
  const TempFolder parent;
  const std::filesystem::path folder = parent / "data";
  std::filesystem::create_directory(folder);
  writeBytes(folder / "Tollamere.reg", "REGEDIT4\r\n");
  writeBytes(parent / "other Tollamere.reg", "REGEDIT4\r\n");
  const struct {
    std::u16string directory;
    bool isFound;
  } kRows[] = {
      {folder.u16string(), true},
      {(folder / "").u16string(), true},
      {(folder / ".." / "data").u16string(), true},
      {folder.u16string() + u"//", true},
      {(parent / "").u16string() + u"other ", true},  // the name just follows the text
      {(parent / "").u16string(), false},
      {(parent / "").u16string() + u"dat", false},
      {(parent / "").u16string() + u"data ", false},
      {(folder / "Tollamere.reg").u16string(), false},
  };
  for (const auto& row : kRows) {
    const ScopedRegistry registry;
    EXPECT_EQ(importDefaultRegistry(row.directory), row.isFound)
        << testing::PrintToString(row.directory);
  }
}

TEST(RegistryImportFromAFile, TakesTheFileWithoutASeparatorFirst) {
  const TempFolder parent;
  const std::filesystem::path folder = parent / "data";
  std::filesystem::create_directory(folder);
  const auto valueOf = [](const char* digit) {
    return "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\Tollamere\\CONTROL]\r\n\"HHoldKeyCode\"=dword:0000005"s +
           digit + "\r\n";
  };
  const auto imported = [&] {
    const ScopedRegistry registry;
    EXPECT_TRUE(importDefaultRegistry(folder.u16string()));
    Dota7KeyInfoManager manager;
    manager.settings().load();
    return manager.settings().key(*findDota7KeyField(u"edt_HHoldKey"));
  };
  writeBytes(folder / "Tollamere.reg", valueOf("1"));
  EXPECT_EQ(imported(), test::key('Q'));
  writeBytes(parent / "dataTollamere.reg", valueOf("2"));
  EXPECT_EQ(imported(), test::key('R'));
}

TEST(RegistryImportFromAFile, LeavesTheRegistryAloneWhereTheFileIsDamaged) {
  const ScopedRegistry registry;
  const RegFile before = registry.content();
  const TempFolder folder;
  const std::string sample = readBytes(kSample);
  for (const std::string& bytes : {""s, "REGEDIT"s, sample.substr(2), sample.substr(0, 60),
                                   sample.substr(1), std::string(10 << 20, '\0')}) {
    writeBytes(folder / "Tollamere.reg", bytes);
    EXPECT_TRUE(importDefaultRegistry((folder / "").u16string()));
    EXPECT_EQ(registry.content(), before);
  }
}

TEST(RegistryImportFromAFile, TakesTheLinesBeforeTheEndOfAFileThatIsCutOff) {
  const ScopedRegistry registry;
  const TempFolder folder;
  writeBytes(folder / "Tollamere.reg",
             "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\Tollamere\\CONTROL]\r\n"
             "\"HHoldKeyCode\"=dword:00000051\r\n\"HStopKeyCode\"=hex(4):52,00,\\\r\n  0");
  EXPECT_TRUE(importDefaultRegistry((folder / "").u16string()));
  Dota7KeyInfoManager manager;
  manager.settings().load();
  EXPECT_EQ(manager.settings().key(*findDota7KeyField(u"edt_HHoldKey")), test::key('Q'));
  EXPECT_EQ(manager.settings().key(*findDota7KeyField(u"edt_HStopKey")), Dota7Key());
}

TEST(RegistryImportFromAFile, CannotStartWhereTheFileCannotBeRead) {
  const ScopedRegistry registry;
  const TempFolder folder;
  std::filesystem::create_directory(folder / "Tollamere.reg");
  EXPECT_FALSE(importDefaultRegistry((folder / "").u16string()));
}

TEST(RegistryImportFromAFile, IsTriedAgainTheNextTime) {
  const ScopedRegistry registry;
  const TempFolder folder;
  EXPECT_FALSE(importDefaultRegistry((folder / "").u16string()));
  writeBytes(folder / "Tollamere.reg", readBytes(kSample));
  EXPECT_TRUE(importDefaultRegistry((folder / "").u16string()));
  EXPECT_TRUE(registry.content().hasKey(test::below(kDota7ControlPath)));
}

}  // namespace
}  // namespace brennet
