// The sample registry file, and the import without one.

#include "gameside/dota7/RegistryImport.h"

#include <algorithm>

#include "gameside/dota7/Dota7Settings.h"
#include "tests/gameside/dota7/Dota7Test.h"
#include "tests/support/TestData.h"

namespace brennet {
namespace {

using platform::RegFile;
using test::below;
using test::key;
using test::readBytes;
using test::ScopedRegistry;
using test::TempFolder;
using test::writeBytes;

const std::string kSample = test::sampleData("Tollamere.reg");

std::u16string withSeparator(const std::filesystem::path& folder) {
  return (folder / "").u16string();
}

TEST(RegistryImport, AsksForNothingWhereThereIsNoFile) {
  const ScopedRegistry registry;
  const RegFile before = registry.content();
  const TempFolder folder;
  EXPECT_FALSE(importDefaultRegistry(withSeparator(folder.path())));
  EXPECT_FALSE(importDefaultRegistry(withSeparator(folder / "missing")));
  EXPECT_FALSE(importDefaultRegistry(u""));
  writeBytes(folder / "Tollamere.reg.old", "REGEDIT4\r\n");
  EXPECT_FALSE(importDefaultRegistry(withSeparator(folder.path())));
  EXPECT_EQ(registry.content(), before);
}

TEST(RegistryImport, LeavesAKeyAloneThatIsThere) {
  ScopedRegistry registry;
  registry.createKey(kDota7Path);
  const RegFile before = registry.content();
  const TempFolder folder;
  writeBytes(folder / "Tollamere.reg", readBytes(kSample));
  EXPECT_TRUE(importDefaultRegistry(withSeparator(folder.path())));
  EXPECT_TRUE(importDefaultRegistry(u"")) << "no file is needed";
  EXPECT_EQ(registry.content(), before);
}

// The limit is 16 MiB; the sample has some 20 KiB.
TEST(RegistryImport, LeavesAFileAloneThatIsTooLarge) {
  const ScopedRegistry registry;
  const RegFile before = registry.content();
  const TempFolder folder;
  writeBytes(folder / "Tollamere.reg", readBytes(kSample));
  std::filesystem::resize_file(folder / "Tollamere.reg", (16U << 20U) + 1);
  EXPECT_FALSE(importDefaultRegistry(withSeparator(folder.path())));
  EXPECT_EQ(registry.content(), before);
}

TEST(RegistryImportSampleRegistry, HasEveryValueOfTheTablesAndNoOther) {
  RegFile sample;
  ASSERT_TRUE(sample.merge(readBytes(kSample)));
  RegFile rest = sample;
  const auto take = [&](std::u16string_view path, std::u16string_view name) {
    EXPECT_NE(sample.find(below(path), name), nullptr) << testing::PrintToString(name);
    rest.remove(below(path), name);
  };
  for (const Dota7KeyField& row : dota7KeyFields()) {
    for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
      take(row.keyPath, row.values(cast).text);
      take(row.keyPath, row.values(cast).code);
    }
  }
  for (const Dota7Switch& row : dota7Switches()) take(kDota7ControlPath, row.valueName);
  for (const Dota7Phrase& row : dota7Phrases()) take(kDota7PhrasesPath, row.valueName);

  RegFile keysAlone;
  for (const std::u16string_view path : {kDota7Path, kDota7ControlPath, kDota7PhrasesPath}) {
    keysAlone.createKey(below(path));
  }
  EXPECT_EQ(rest, keysAlone);
}

TEST(RegistryImportSampleRegistry, BindsNoKeyTwiceAndReadsAsItWasWritten) {
  RegFile sample;
  ASSERT_TRUE(sample.merge(readBytes(kSample)));
  ScopedRegistry registry;
  for (const std::u16string_view path : {kDota7ControlPath, kDota7PhrasesPath}) {
    registry.createKey(path);
    for (const Dota7KeyField& row : dota7KeyFields()) {
      if (row.keyPath != path) continue;
      for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
        const Dota7ValuePair& values = row.values(cast);
        registry.set(path, values.text, *sample.find(below(path), values.text));
        registry.set(path, values.code, *sample.find(below(path), values.code));
      }
    }
  }
  const RegFile before = registry.content();
  Dota7KeyInfoManager manager;
  manager.settings().load();
  for (const Dota7Cast cast : {Dota7Cast::Quick, Dota7Cast::Normal}) {
    manager.settings().setCast(cast);
    for (const Dota7KeyField& row : dota7KeyFields()) {
      EXPECT_TRUE(manager.settings().storeKey(row, manager.settings().key(row)));
    }
  }
  EXPECT_EQ(registry.content(), before) << "the texts are those of the codes";
  EXPECT_EQ(manager.settings().key(*findDota7KeyField(u"edtHACSkill_3")), key('Q', Dota7Key::kAlt));
}

}  // namespace
}  // namespace brennet
