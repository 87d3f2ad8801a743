#include "cli/Output.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>

namespace brennet::cli {

void printJson(const nlohmann::ordered_json& json, std::ostream& out) {
  out << json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

std::string shown(std::string_view text) {
  const auto isControl = [](unsigned char byte) { return byte < 0x20 || byte == 0x7F; };
  std::string line(text);
  std::ranges::replace_if(line, isControl, '?');
  return line;
}

}  // namespace brennet::cli
