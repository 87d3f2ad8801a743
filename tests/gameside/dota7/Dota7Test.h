#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "tests/support/ScopedRegistry.h"

namespace brennet::test {

inline platform::RegistryValue bytesValue(std::string bytes) {
  return {platform::kRegistryBinary, std::move(bytes)};
}

// The bytes of a UTF-8 literal.
inline std::string utf8(const char8_t* text) {
  return reinterpret_cast<const char*>(text);
}

inline Dota7Key key(int code, int modifier = Dota7Key::kNoModifier) {
  return {code, modifier};
}

// A registry with the two keys of DotA 7, and a manager of its own.
class Dota7Test : public testing::Test {
 protected:
  Dota7Test() {
    registry.createKey(kDota7ControlPath);
    registry.createKey(kDota7PhrasesPath);
  }

  [[nodiscard]] std::optional<platform::RegistryValue> valueOf(std::u16string_view path,
                                                               std::u16string_view name) const {
    const platform::RegFile content = registry.content();
    const platform::RegistryValue* const value = content.find(below(path), name);
    return value != nullptr ? std::optional(*value) : std::nullopt;
  }
  [[nodiscard]] std::optional<platform::RegistryValue> control(std::u16string_view name) const {
    return valueOf(kDota7ControlPath, name);
  }
  [[nodiscard]] std::optional<platform::RegistryValue> phrases(std::u16string_view name) const {
    return valueOf(kDota7PhrasesPath, name);
  }
  // Expects the values to hold a key and its text.
  void expectKey(std::u16string_view path, const Dota7ValuePair& values, std::uint32_t code,
                 const std::string& text) const {
    EXPECT_EQ(valueOf(path, values.code), platform::dwordValue(code));
    EXPECT_EQ(valueOf(path, values.text), bytesValue(text));
  }

  static const Dota7KeyField& field(std::u16string_view objectName) {
    return *findDota7KeyField(objectName);
  }

  ScopedRegistry registry;
  Dota7KeyInfoManager manager;
  Dota7Settings& settings = manager.settings();
};

}  // namespace brennet::test
