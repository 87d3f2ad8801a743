#pragma once

#include <nlohmann/json_fwd.hpp>

#include <iosfwd>
#include <string>
#include <string_view>

namespace brennet::cli {

// Writes JSON. What is no UTF-8, in a file name or in a phrase of a record, becomes U+FFFD.
void printJson(const nlohmann::ordered_json& json, std::ostream& out);

// A text of a file as it can be shown on a line: control characters, which could make a terminal do
// things, become question marks.
[[nodiscard]] std::string shown(std::string_view text);

}  // namespace brennet::cli
