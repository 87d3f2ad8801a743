#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/RegFile.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {

// A registry without DotA 7 settings for the time of a test: a file of its own, in the folder of
// which the user's own folder stands meanwhile, and on Windows the user's own registry. There the
// constructor throws where the user has such settings; Wine gives each program a new user's
// registry.
class ScopedRegistry {
 public:
  ScopedRegistry();
  ~ScopedRegistry();
  ScopedRegistry(const ScopedRegistry&) = delete;
  ScopedRegistry& operator=(const ScopedRegistry&) = delete;

  // What stands at and below Software\Tollamere; elsewhere than on Windows, all that there is.
  [[nodiscard]] platform::RegFile content() const;
  // Waits until `content` stands there, for a minute at most: Windows imports a file by a program
  // that nobody waits for.
  [[nodiscard]] bool becomes(const platform::RegFile& content) const;

  // Creates keys, given below the user's root, and sets values past all that is tested.
  void createKey(std::u16string_view path);
  void set(std::u16string_view path, std::u16string_view name,
           const platform::RegistryValue& value);
  // Removes a key with all that is in it.
  void removeKey(std::u16string_view path);

  // Leaves of all rights to the key (elsewhere than on Windows: to all keys) that of reading.
  void denyWriting(std::u16string_view path);
  // Takes that back.
  void allowWriting(std::u16string_view path);

 private:
  TempFolder folder_;
  std::optional<std::string> folderBefore_;  // for temporary files
};

// `path`, which is below the user's root, with that root before it.
[[nodiscard]] inline std::u16string below(std::u16string_view path) {
  return std::u16string(u"HKEY_CURRENT_USER\\").append(path);
}

}  // namespace brennet::test

namespace brennet::platform {

// Shows a content in the messages of failed tests; what is not ASCII as question marks.
inline void PrintTo(const RegFile& content, std::ostream* out) {
  const std::string bytes = content.serialize();
  *out << '\n';
  for (std::size_t at = 2; at + 1 < bytes.size(); at += 2) {
    const bool isAscii = bytes[at + 1] == 0 && static_cast<signed char>(bytes[at]) >= 0;
    if (bytes[at] != '\r') *out << (isAscii ? bytes[at] : '?');
  }
}

}  // namespace brennet::platform
