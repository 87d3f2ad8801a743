#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/RegistryValue.h"

namespace brennet::platform {

// The order of key and value names, in which names that the registry does not tell apart are equal:
// the case of letters does not count. Negative, zero or positive, as `a` comes before `b`, is the
// same name, or comes after it. On Windows it is the system's own; elsewhere that of RegFile.h,
// which knows only ASCII letters.
[[nodiscard]] int compareRegistryNames(std::u16string_view a, std::u16string_view b);

// Bytes that tell the registry of this process from others that the same user may have; they have
// no other meaning. Empty on Windows, where a user has just one.
[[nodiscard]] std::string registryIdentity();

// A key below the current user's root of the registry, open for reading and writing.
//
// On Windows this is the registry. Elsewhere it is the .reg file (RegFile.h) that the environment
// variable BRENNET_REGISTRY names: it is read when a key is opened, and replaced as a whole by each
// write; without the variable there are no keys.
class RegistryKey {
 public:
  // Opens the key, for example Software\Tollamere, with all rights. A key that is missing, or that
  // the user may not change, stays closed; none is created.
  explicit RegistryKey(std::u16string_view path);
  ~RegistryKey();
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  [[nodiscard]] bool isOpen() const { return body_ != nullptr; }

  // What a name holds.
  struct Reading {
    bool known = false;                  // false: the key is closed, or the system refuses to tell
    std::optional<RegistryValue> value;  // nothing: there is no such value
  };
  [[nodiscard]] Reading read(std::u16string_view name) const;

  // Puts `value` under the name, whatever it held before. Returns whether it holds that now; if
  // not, nothing has changed.
  bool write(std::u16string_view name, const RegistryValue& value);

  // Removes what the name holds. Returns whether it holds nothing now.
  bool remove(std::u16string_view name);

  // Brings to the disk what was written and removed, which the system would do by itself a little
  // later. Returns whether that is done.
  bool flush();

 private:
  struct Body;
  std::unique_ptr<Body> body_;
};

}  // namespace brennet::platform
