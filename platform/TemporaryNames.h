#pragma once

#include "platform/Paths.h"

// The names beside a file under which its new content stands until it takes the file's place: the
// file's name, then ".PROCESS-NUMBER.tmp".
namespace brennet::platform {

// The name of the process with the given number; `number` tells files of one process apart.
[[nodiscard]] Path temporaryName(const Path& path, unsigned long process, int number);

// Whether `name` is such a name of a file called `file`; both without their folders.
[[nodiscard]] bool isTemporaryName(std::basic_string_view<Path::value_type> name,
                                   std::basic_string_view<Path::value_type> file);

}  // namespace brennet::platform
