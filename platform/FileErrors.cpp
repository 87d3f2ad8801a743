#include "platform/FileErrors.h"

namespace brennet::platform {

bool isTooLarge(const std::error_code& error) {
  return error == std::errc::file_too_large;
}

}  // namespace brennet::platform
