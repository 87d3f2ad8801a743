// The world of test programs has nothing of the caller's, but everything of the system's.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/support/World.h"

namespace brennet::test {
namespace {

// Variables that somebody may have set and that must not reach a test.
constexpr const char* kCallers[] = {"LANG",
                                    "TZ",
                                    "LANGUAGE",
                                    "LC_CTYPE",
                                    "LC_NUMERIC",
                                    "QT_SCALE_FACTOR",
                                    "QT_STYLE_OVERRIDE",
                                    "QT_LOGGING_RULES",
                                    "XDG_CACHE_HOME",
                                    "XDG_CONFIG_HOME",
                                    "XDG_RUNTIME_DIR",
                                    "FONTCONFIG_FILE",
                                    "FONTCONFIG_PATH",
                                    "BRENNET_REGISTRY"};

std::string variable(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "(none)";
}

TEST(World, HasNothingOfTheCallers) {
  for (const char* const name : kCallers) EXPECT_EQ(variable(name), "(none)") << name;
  for (const char* const name : kCallers) _putenv_s(name, "the caller's");
  leaveTheCallersWorld();
  for (const char* const name : kCallers) EXPECT_EQ(variable(name), "(none)") << name;
}

TEST(World, KeepsWhatIsTheSystemsOrForTests) {
  _putenv_s("BRENNET_TEST_ANYTHING", "a value");
  leaveTheCallersWorld();
  EXPECT_EQ(variable("BRENNET_TEST_ANYTHING"), "a value");
  for (const char* const name : {"windir", "TEMP", "PATH"}) EXPECT_NE(variable(name), "(none)");
}

}  // namespace
}  // namespace brennet::test
