#include "platform/FileSystem.h"

namespace brennet::platform {

FileSystem& fileSystem() {
  return operatingSystem();
}

}  // namespace brennet::platform
