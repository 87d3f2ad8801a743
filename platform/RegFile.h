#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/RegistryValue.h"

namespace brennet::platform {

// Registry keys and values as the text files of the registry editor (".reg") hold them.
//
// Paths include the root, for example HKEY_CURRENT_USER\Software. As in the registry, keys and
// values whose names differ only in the case of ASCII letters are the same. A key that has subkeys
// exists. Works on bytes, never on files.
class RegFile {
 public:
  // Carries out what a .reg file says: "Windows Registry Editor Version 5.00" or "REGEDIT4", in
  // UTF-16 with a byte-order mark or in the ANSI code page. Lines that make no sense are skipped,
  // as are the values below a key line that makes none. Returns false, and has changed nothing,
  // where the first line is neither of the two.
  bool merge(std::string_view fileBytes);

  // All keys and values as a .reg file of version 5.00 in UTF-16, which merge() reads back.
  [[nodiscard]] std::string serialize() const;

  [[nodiscard]] bool hasKey(std::u16string_view path) const;

  // The value `name` of the key `path`; null where there is none. Valid until the next change.
  [[nodiscard]] const RegistryValue* find(std::u16string_view path, std::u16string_view name) const;

  // Creates the key. Does nothing if it exists, or if `path` does not begin with a root of the
  // registry, or contains an empty name or a line break.
  void createKey(std::u16string_view path);

  // Deletes the key with everything below it; the key above it stays. Roots cannot be deleted.
  void deleteKey(std::u16string_view path);

  // Sets a value of an existing key. Returns false, and has changed nothing, if the key does not
  // exist or the name contains a line break.
  bool set(std::u16string_view path, std::u16string_view name, RegistryValue value);

  // Removes a value, if it exists.
  void remove(std::u16string_view path, std::u16string_view name);

  // The form of a name that is the same for all spellings of it.
  [[nodiscard]] static std::u16string lowered(std::u16string_view name);

  friend bool operator==(const RegFile&, const RegFile&) = default;

 private:
  struct Value {
    std::u16string name;
    RegistryValue content;
    friend bool operator==(const Value&, const Value&) = default;
  };
  struct Key {
    std::u16string path;
    std::map<std::u16string, Value> values;  // by the name in lower case
    friend bool operator==(const Key&, const Key&) = default;
  };

  [[nodiscard]] Key* keyToChange(std::u16string_view path);

  std::map<std::u16string, Key> keys_;  // by the path in lower case
};

}  // namespace brennet::platform
