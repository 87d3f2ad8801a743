// The file that stands for the registry on systems without one.

#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Registry.h"
#include "platform/RegistryEditor.h"
#include "tests/support/ScopedFileLimit_posix.h"
#include "tests/support/TempFolder.h"

namespace brennet::platform {
namespace {

using namespace std::string_literals;
using test::readBytes;
using test::TempFolder;
using test::writeBytes;

constexpr char kVariable[] = "BRENNET_REGISTRY";
constexpr char kSeed[] = "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\A]\r\n\"N\"=dword:1\r\n";

class RegistryFile : public testing::Test {
 protected:
  RegistryFile() {
    setenv(kVariable, (folder_ / "registry.reg").c_str(), 1);
    writeBytes(folder_ / "seed.reg", kSeed);
  }
  ~RegistryFile() override { unsetenv(kVariable); }

  [[nodiscard]] bool importSeed() const {
    return importRegFile((folder_ / "").u16string(), u"seed.reg");
  }

  TempFolder folder_;
};

TEST_F(RegistryFile, HasNoKeysWhereItIsMissing) {
  EXPECT_FALSE(RegistryKey(u"Software").isOpen());
  EXPECT_EQ(folder_.listing(), "seed.reg\n");
}

TEST_F(RegistryFile, IsNowhereWithoutItsVariable) {
  unsetenv(kVariable);
  EXPECT_FALSE(RegistryKey(u"Software").isOpen());
  EXPECT_FALSE(importSeed());
  EXPECT_EQ(folder_.listing(), "seed.reg\n");
}

TEST_F(RegistryFile, IsCreatedByAnImport) {
  EXPECT_TRUE(importSeed());
  EXPECT_EQ(RegistryKey(u"Software\\A").read(u"N").value, dwordValue(1));
}

TEST_F(RegistryFile, IsLeftAloneWhereItIsDamaged) {
  for (const std::string& damaged : {"REGEDIT"s, ""s, "\xFF\xFE"s, "R\0E\0"s}) {
    writeBytes(folder_ / "registry.reg", damaged);
    EXPECT_FALSE(RegistryKey(u"Software\\A").isOpen());
    EXPECT_FALSE(importSeed());
    EXPECT_EQ(readBytes(folder_ / "registry.reg"), damaged);
  }
}

TEST_F(RegistryFile, MayBeAFolder) {
  std::filesystem::create_directory(folder_ / "registry.reg");
  EXPECT_FALSE(RegistryKey(u"Software\\A").isOpen());
  EXPECT_FALSE(importSeed());
  EXPECT_EQ(folder_.listing(), "registry.reg\nseed.reg\n");
}

TEST_F(RegistryFile, IsToldFromOthersByItsPlace) {
  EXPECT_EQ(registryIdentity(), (folder_ / "registry.reg").native());
  setenv(kVariable, (folder_ / "./registry.reg").c_str(), 1);
  EXPECT_EQ(registryIdentity(), (folder_ / "registry.reg").native());
  setenv(kVariable, (folder_ / "none/registry.reg").c_str(), 1);
  EXPECT_EQ(registryIdentity(), (folder_ / "none/registry.reg").native());
  unsetenv(kVariable);
  EXPECT_EQ(registryIdentity(), "");
}

TEST_F(RegistryFile, HasNotTakenWhatCouldNotBeWritten) {
  EXPECT_TRUE(importSeed());
  const std::string before = readBytes(folder_ / "registry.reg");
  RegistryKey key(u"Software\\A");
  bool isWritten = true;
  bool isRemoved = true;
  {
    const test::ScopedFileLimit limit(10);
    isWritten = key.write(u"N", dwordValue(2));
    isRemoved = key.remove(u"N");
  }
  EXPECT_FALSE(isWritten);
  EXPECT_FALSE(isRemoved);
  EXPECT_EQ(key.read(u"N").value, dwordValue(1));
  EXPECT_EQ(readBytes(folder_ / "registry.reg"), before);
}

TEST_F(RegistryFile, KeepsItsContentWhereTheKeyGoesUnderTheHandsOfAWriter) {
  EXPECT_TRUE(importSeed());
  RegistryKey key(u"Software\\A");
  writeBytes(folder_ / "registry.reg", "REGEDIT4\r\n");
  EXPECT_FALSE(key.write(u"N", dwordValue(2)));
  EXPECT_EQ(readBytes(folder_ / "registry.reg"), "REGEDIT4\r\n");
}

}  // namespace
}  // namespace brennet::platform
