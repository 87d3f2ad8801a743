#pragma once

#include <string_view>

namespace brennet {

// Makes sure that the DotA 7 settings are in the registry: if their key cannot be opened, has
// Tollamere.reg imported from `directory`. The path of the file is that text followed directly by
// its name or, if there is no such file, with a separator between. On Windows the import runs while
// the caller goes on; what is not there yet reads as its default.
//
// Returns false if the key is missing and the import could not be started: then the DotA 7 mode
// must not be offered. Nothing is shown, and nothing is imported if the key exists.
[[nodiscard]] bool importDefaultRegistry(std::u16string_view directory);

}  // namespace brennet
