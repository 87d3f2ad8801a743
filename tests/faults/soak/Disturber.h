#pragma once

#include <filesystem>

namespace brennet::test {

// Disturbs whoever uses the files in `folder`, as the system's own programs do, until the process
// is ended: on Windows it opens each new file for 50 milliseconds, as a virus scanner does;
// elsewhere it takes leases on `file` and gives them up when it is asked to.
[[noreturn]] void disturb(const std::filesystem::path& folder, const std::filesystem::path& file);

}  // namespace brennet::test
