#include "gameside/RegistryImport.h"

#include <string>

#include "gameside/Dota7Values.h"
#include "platform/Files.h"
#include "platform/Registry.h"
#include "platform/RegistryEditor.h"

namespace brennet {

bool importDefaultRegistry(std::u16string_view directory) {
  constexpr std::u16string_view kFileName = u"Tollamere.reg";
  if (platform::RegistryKey(kDota7Path).isOpen()) return true;
  const auto file = platform::pathFromUtf16(std::u16string(directory).append(kFileName));
  return platform::pathExists(file) && platform::importRegFile(directory, kFileName);
}

}  // namespace brennet
