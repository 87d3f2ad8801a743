#pragma once

#include <filesystem>

namespace brennet::test {

// Disturbs whoever uses the files in `folder`, in the way of the system's own programs, until the
// process is ended: on Windows it opens each file that is new for 50 milliseconds, as a virus
// scanner does; elsewhere it takes leases on `file` and gives them up when it is asked.
[[noreturn]] void disturb(const std::filesystem::path& folder, const std::filesystem::path& file);

}  // namespace brennet::test
