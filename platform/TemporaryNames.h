#pragma once

#include "platform/Paths.h"

// The names beside a file under which its new content stands until it takes the file's place: the
// file's name, then ".brennet-PROCESS-NUMBER.tmp".
namespace brennet::platform {

// The name of the process with the given number; `number` tells files of one process apart.
[[nodiscard]] Path temporaryName(const Path& path, unsigned long process, int number);

// Whether `text` is what stands behind the file's name there.
[[nodiscard]] bool isTemporaryEnding(std::basic_string_view<Path::value_type> text);

}  // namespace brennet::platform
