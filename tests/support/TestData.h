#pragma once

#include <string>
#include <string_view>

namespace brennet::test {

// The path of a file in tests/data/, and of one in samples/data/, as text in the ANSI code page.
[[nodiscard]] std::string testData(std::string_view name);
[[nodiscard]] std::string sampleData(std::string_view name);

// The path of a file of the project, named from its top folder.
[[nodiscard]] std::string projectFile(std::string_view name);

}  // namespace brennet::test
