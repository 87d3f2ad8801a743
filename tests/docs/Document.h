#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brennet {

using Row = std::vector<std::string>;

// The rows of the first table below the heading of that text; the row of column names is not among
// them. Cells have neither backticks nor spaces around them. Empty where there is no such table.
[[nodiscard]] std::vector<Row> tableBelow(std::string_view document, std::string_view heading);

// The bytes of a file of the project, named from its top folder; empty where it cannot be read.
[[nodiscard]] std::string readProjectFile(std::string_view name);

}  // namespace brennet
