#pragma once

#include <string_view>

namespace brennet {

// Sees to it that the DotA 7 settings are in the registry: where their key cannot be opened, has
// Tollamere.reg imported from `directory`. The file is looked for under that text followed by its
// name, as it stands; where there is none, with a separator between. On Windows the import goes on
// while the caller does; what is not there yet reads as its default.
//
// Returns false where the key is missing and the import could not be started: DotA 7 mode is not to
// be offered then. Nothing is shown, and nothing is imported where the key is there.
[[nodiscard]] bool importDefaultRegistry(std::u16string_view directory);

}  // namespace brennet
