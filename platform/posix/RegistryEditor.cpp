#include <string>

#include "platform/Files.h"
#include "platform/RegFile.h"
#include "platform/RegistryEditor.h"
#include "platform/posix/RegistryPath.h"

namespace brennet::platform {

// A file that is not a .reg file changes nothing, but it was handed to the importer all the same:
// with regedit.exe, too, the caller would not learn of that.
bool importRegFile(std::u16string_view folder, std::u16string_view name) {
  const Path registry = registryPath();
  std::string bytes;
  if (registry.empty() ||
      readFile(pathFromUtf16(std::u16string(folder).append(name)), bytes, kAnySize)) {
    return false;
  }
  RegFile content;
  std::string oldBytes;
  const std::error_code error = readFile(registry, oldBytes, kAnySize);
  if (error && error != std::errc::no_such_file_or_directory) return false;
  if (!error && !content.merge(oldBytes)) return false;
  if (!content.merge(bytes)) return true;
  return !replaceFile(registry, content.serialize());
}

}  // namespace brennet::platform
