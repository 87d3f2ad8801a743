#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/RegFile.h"
#include "tests/support/TempFolder.h"

namespace brennet::test {

// A registry without DotA 7 settings for the duration of a test: on Windows the user's registry,
// elsewhere a new file, whose folder also holds the user's own folder meanwhile. On Windows the
// constructor throws if the user has such settings; under Wine each program has a new user's
// registry.
class ScopedRegistry {
 public:
  ScopedRegistry();
  ~ScopedRegistry();
  ScopedRegistry(const ScopedRegistry&) = delete;
  ScopedRegistry& operator=(const ScopedRegistry&) = delete;

  // What is at and below Software\Tollamere; except on Windows, the whole content.
  [[nodiscard]] platform::RegFile content() const;
  // Waits until content() is `content`, for a minute at most: on Windows a program imports files,
  // and nothing waits for that.
  [[nodiscard]] bool becomes(const platform::RegFile& content) const;

  // Create keys and set values without the code that is tested; paths are below the user's root.
  void createKey(std::u16string_view path);
  void set(std::u16string_view path, std::u16string_view name,
           const platform::RegistryValue& value);
  // Removes a key and everything in it.
  void removeKey(std::u16string_view path);

  // Leaves only the right to read the key; except on Windows, this affects all keys.
  void denyWriting(std::u16string_view path);
  // Takes denyWriting() back.
  void allowWriting(std::u16string_view path);

 private:
  TempFolder folder_;
  std::optional<std::string> folderBefore_;  // for temporary files
};

// The full path of `path`, which is below the user's root.
[[nodiscard]] inline std::u16string below(std::u16string_view path) {
  return std::u16string(u"HKEY_CURRENT_USER\\").append(path);
}

}  // namespace brennet::test

namespace brennet::platform {

// Shows a content in messages of failed tests, with question marks for what is not ASCII.
inline void PrintTo(const RegFile& content, std::ostream* out) {
  const std::string bytes = content.serialize();
  *out << '\n';
  for (std::size_t at = 2; at + 1 < bytes.size(); at += 2) {
    const bool isAscii = bytes[at + 1] == 0 && static_cast<signed char>(bytes[at]) >= 0;
    if (bytes[at] != '\r') *out << (isAscii ? bytes[at] : '?');
  }
}

}  // namespace brennet::platform
