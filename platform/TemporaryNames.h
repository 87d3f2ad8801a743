#pragma once

#include <optional>

#include "platform/Paths.h"

// The names beside a file under which its new content is written until it takes the file's place:
// the file's name, then ".brennet-PROCESS-NUMBER.tmp".
namespace brennet::platform {

// The name for the process with the given number; `number` tells files of one process apart.
[[nodiscard]] Path temporaryName(const Path& path, unsigned long process, int number);

// The number of the process in `ending`, if that is what follows the file's name in such a name.
[[nodiscard]] std::optional<unsigned long> temporaryProcess(
    std::basic_string_view<Path::value_type> ending);

}  // namespace brennet::platform
