#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/support/ScopedRegistry.h"

namespace brennet::test {
namespace {

constexpr char kVariable[] = "BRENNET_REGISTRY";
constexpr char kFolderVariable[] = "TMPDIR";
constexpr char kName[] = "registry.reg";
constexpr uid_t kNobody = 65534;

platform::RegFile contentOf(const std::filesystem::path& file) {
  platform::RegFile content;
  if (!content.merge(readBytes(file))) throw std::runtime_error("the registry is damaged");
  return content;
}

}  // namespace

ScopedRegistry::ScopedRegistry() {
  writeBytes(folder_ / kName, platform::RegFile().serialize());
  setenv(kVariable, (folder_ / kName).c_str(), 1);
  if (const char* const folder = std::getenv(kFolderVariable)) folderBefore_ = folder;
  setenv(kFolderVariable, folder_.path().c_str(), 1);
}

ScopedRegistry::~ScopedRegistry() {
  unsetenv(kVariable);
  if (folderBefore_) {
    setenv(kFolderVariable, folderBefore_->c_str(), 1);
  } else {
    unsetenv(kFolderVariable);
  }
  // Regains the rights that denyWriting() gave up.
  if (getuid() == 0 && seteuid(0) != 0) std::abort();
}

platform::RegFile ScopedRegistry::content() const {
  return contentOf(folder_ / kName);
}

void ScopedRegistry::createKey(std::u16string_view path) {
  platform::RegFile content = contentOf(folder_ / kName);
  content.createKey(below(path));
  writeBytes(folder_ / kName, content.serialize());
}

void ScopedRegistry::set(std::u16string_view path, std::u16string_view name,
                         const platform::RegistryValue& value) {
  platform::RegFile content = contentOf(folder_ / kName);
  content.createKey(below(path));
  if (!content.set(below(path), name, value)) throw std::runtime_error("no such key");
  writeBytes(folder_ / kName, content.serialize());
}

void ScopedRegistry::removeKey(std::u16string_view path) {
  platform::RegFile content = contentOf(folder_ / kName);
  content.deleteKey(below(path));
  writeBytes(folder_ / kName, content.serialize());
}

// Permissions do not bind the superuser, so the process becomes another user's. A second call has
// nothing left to do.
void ScopedRegistry::denyWriting(std::u16string_view) {
  if (faccessat(AT_FDCWD, (folder_ / kName).c_str(), W_OK, AT_EACCESS) != 0) return;
  if (chmod((folder_ / kName).c_str(), 0444) != 0) throw std::runtime_error("no rights");
  if (getuid() == 0 && seteuid(kNobody) != 0) throw std::runtime_error("no other user");
}

void ScopedRegistry::allowWriting(std::u16string_view) {
  if (getuid() == 0 && seteuid(0) != 0) throw std::runtime_error("no rights");
  if (chmod((folder_ / kName).c_str(), 0644) != 0) throw std::runtime_error("no rights");
}

}  // namespace brennet::test
