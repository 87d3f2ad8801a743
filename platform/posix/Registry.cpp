#include <fcntl.h>
#include <unistd.h>

#include <string>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "platform/RegFile.h"
#include "platform/Registry.h"
#include "platform/posix/RegistryPath.h"

namespace brennet::platform {
namespace {

// Whether the present rights of the process let it read and write the file.
bool mayChange(const Path& file) {
  return faccessat(AT_FDCWD, file.c_str(), R_OK | W_OK, AT_EACCESS) == 0;
}

bool load(const Path& file, RegFile& content) {
  std::string bytes;
  return !readFile(file, bytes, kAnySize) && content.merge(bytes);
}

}  // namespace

int compareRegistryNames(std::u16string_view a, std::u16string_view b) {
  return RegFile::lowered(a).compare(RegFile::lowered(b));
}

std::string registryIdentity() {
  const Path file = registryPath();
  const Path identity = file.empty() ? Path() : fileSystem().identity(file);
  return identity.empty() ? file.native() : identity.native();
}

struct RegistryKey::Body {
  Path file;
  std::u16string path;
  RegFile content;

  // Reads the file again: another RegistryKey may have written to it since.
  template <class Change>
  bool change(Change change) {
    RegFile changed;
    if (!load(file, changed) || !change(changed)) return false;
    if (replaceFile(file, changed.serialize())) return false;
    content = std::move(changed);
    return true;
  }
};

RegistryKey::RegistryKey(std::u16string_view path) {
  Body body{registryPath(), std::u16string(kUserRoot).append(u"\\").append(path), {}};
  if (body.file.empty() || !mayChange(body.file) || !load(body.file, body.content)) return;
  if (body.content.hasKey(body.path)) body_ = std::make_unique<Body>(std::move(body));
}

RegistryKey::~RegistryKey() = default;

RegistryKey::Reading RegistryKey::read(std::u16string_view name) const {
  if (!isOpen()) return {};
  const RegistryValue* const value = body_->content.find(body_->path, name);
  return {true, value != nullptr ? std::optional(*value) : std::nullopt};
}

bool RegistryKey::write(std::u16string_view name, const RegistryValue& value) {
  return isOpen() &&
         body_->change([&](RegFile& content) { return content.set(body_->path, name, value); });
}

bool RegistryKey::remove(std::u16string_view name) {
  return isOpen() && body_->change([&](RegFile& content) {
    content.remove(body_->path, name);
    return true;
  });
}

// Each write was flushed when it was made.
bool RegistryKey::flush() {
  return isOpen();
}

}  // namespace brennet::platform
