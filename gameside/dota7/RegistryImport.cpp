#include "gameside/dota7/RegistryImport.h"

#include <cstdint>
#include <string>

#include "gameside/dota7/Dota7Values.h"
#include "platform/Files.h"
#include "platform/Registry.h"
#include "platform/RegistryEditor.h"

namespace brennet {
namespace {

constexpr std::u16string_view kFileName = u"Tollamere.reg";

// The keys of DotA 7 take some 20 KiB. The editor would read any file into memory as a whole.
constexpr std::uint64_t kLargestImport = 16U << 20U;

platform::Path pathIn(const std::u16string& directory) {
  return platform::pathFromUtf16(directory + std::u16string(kFileName));
}

// Whether that is the folder of the file, written so that the file's name can follow.
bool hasFile(const std::u16string& directory) {
  return platform::pathExists(pathIn(directory));
}

}  // namespace

bool importDefaultRegistry(std::u16string_view directory) {
  if (platform::RegistryKey(kDota7Path).isOpen()) return true;
  std::u16string folder(directory);
  // An empty name is no folder: a separator would make it the root.
  if (!hasFile(folder) && !folder.empty()) {
    folder += static_cast<char16_t>(platform::Path::preferred_separator);
  }
  return hasFile(folder) && !platform::isFileLarger(pathIn(folder), kLargestImport) &&
         platform::importRegFile(folder, kFileName);
}

}  // namespace brennet
