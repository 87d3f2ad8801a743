#pragma once

#include <filesystem>
#include <string_view>

namespace brennet::test {

// Puts a settings file and a preference file through everything that a host can ask for: load,
// fill, switch, take a changed block back. Writes the results, the blocks and the files after each
// step into `folder`, which is made.
void dumpSettings(std::string_view settings, std::string_view preferences,
                  const std::filesystem::path& folder);

}  // namespace brennet::test
