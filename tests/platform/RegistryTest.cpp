// The registry: the user's own on Windows, a file elsewhere.

#include "platform/Registry.h"

#include <gtest/gtest.h>

#include "tests/support/ScopedRegistry.h"

namespace brennet::platform {
namespace {

using namespace std::string_literals;
using test::below;
using test::ScopedRegistry;

constexpr std::u16string_view kKey = u"Software\\Tollamere";

TEST(RegistryKey, IsClosedWhereItIsMissing) {
  const ScopedRegistry registry;
  const RegFile before = registry.content();
  RegistryKey key(kKey);
  EXPECT_FALSE(key.isOpen());
  EXPECT_FALSE(key.read(u"N").known);
  EXPECT_FALSE(key.write(u"N", dwordValue(1)));
  EXPECT_FALSE(key.remove(u"N"));
  EXPECT_EQ(registry.content(), before);
}

TEST(RegistryKey, BringsItsValuesToTheDiskWhereItIsOpen) {
  ScopedRegistry registry;
  EXPECT_FALSE(RegistryKey(kKey).flush());
  registry.createKey(kKey);
  RegistryKey key(kKey);
  EXPECT_TRUE(key.write(u"N", dwordValue(1)));
  EXPECT_TRUE(key.flush());
  EXPECT_EQ(key.read(u"N").value, dwordValue(1));
}

TEST(RegistryKey, GivesBackWhatWasWritten) {
  ScopedRegistry registry;
  registry.createKey(kKey);
  for (const RegistryValue& value :
       {dwordValue(0x51), RegistryValue{kRegistryBinary, ""}, RegistryValue{kRegistryBinary, "Q"},
        RegistryValue{kRegistryBinary, std::string(70000, '\xFE')},
        RegistryValue{kRegistryDword, "\1\0"s}, RegistryValue{kRegistryText, "Q\0\0\0"s},
        RegistryValue{kRegistryText, "no"}, RegistryValue{7, "odd"}}) {
    RegistryKey key(kKey);
    ASSERT_TRUE(key.isOpen());
    EXPECT_TRUE(key.write(u"N", value));
    EXPECT_EQ(key.read(u"N").value, value);
    EXPECT_EQ(RegistryKey(kKey).read(u"n").value, value);
    const RegFile content = registry.content();
    const RegistryValue* const stored = content.find(below(kKey), u"N");
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(*stored, value);
  }
}

TEST(RegistryKey, KnowsThatAValueIsAbsent) {
  ScopedRegistry registry;
  registry.createKey(kKey);
  const RegistryKey::Reading reading = RegistryKey(kKey).read(u"N");
  EXPECT_TRUE(reading.known);
  EXPECT_EQ(reading.value, std::nullopt);
}

TEST(RegistryKey, RemovesAValueOnce) {
  ScopedRegistry registry;
  registry.set(kKey, u"N", dwordValue(1));
  registry.set(kKey, u"M", dwordValue(2));
  RegistryKey key(kKey);
  EXPECT_TRUE(key.remove(u"N"));
  EXPECT_TRUE(key.remove(u"N"));
  EXPECT_EQ(key.read(u"N").value, std::nullopt);
  EXPECT_EQ(key.read(u"M").value, dwordValue(2));
}

TEST(RegistryKey, KeepsWhatAnotherKeyWrites) {
  ScopedRegistry registry;
  registry.createKey(u"Software\\Tollamere\\A");
  RegistryKey parent(kKey);
  RegistryKey child(u"Software\\Tollamere\\A");
  EXPECT_TRUE(parent.write(u"N", dwordValue(1)));
  EXPECT_TRUE(child.write(u"N", dwordValue(2)));
  EXPECT_TRUE(parent.write(u"M", dwordValue(3)));
  EXPECT_EQ(RegistryKey(kKey).read(u"N").value, dwordValue(1));
  EXPECT_EQ(RegistryKey(u"Software\\Tollamere\\A").read(u"N").value, dwordValue(2));
}

TEST(RegistryKey, IsClosedToThoseWhoMayOnlyRead) {
  ScopedRegistry registry;
  registry.set(kKey, u"N", dwordValue(1));
  const RegFile before = registry.content();
  registry.denyWriting(kKey);
  RegistryKey key(kKey);
  EXPECT_FALSE(key.isOpen());
  EXPECT_FALSE(key.write(u"N", dwordValue(2)));
  EXPECT_EQ(registry.content(), before);
}

}  // namespace
}  // namespace brennet::platform
