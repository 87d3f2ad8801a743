#include "tests/docs/Document.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace brennet {
namespace {

std::string trimmed(std::string_view cell) {
  constexpr std::string_view kAround = " `";
  const std::size_t first = cell.find_first_not_of(kAround);
  if (first == std::string_view::npos) return {};
  return std::string(cell.substr(first, cell.find_last_not_of(kAround) - first + 1));
}

// The cells of a line "| a | b |".
Row cellsOf(std::string_view line) {
  Row cells;
  std::size_t at = 1;
  std::size_t end = line.find('|', at);
  while (end != std::string_view::npos) {
    cells.push_back(trimmed(line.substr(at, end - at)));
    at = end + 1;
    end = line.find('|', at);
  }
  return cells;
}

bool isHeading(std::string_view line) {
  return !line.empty() && line.front() == '#';
}

bool isHeadingOf(std::string_view line, std::string_view text) {
  const std::size_t start = line.find_first_not_of('#');
  return isHeading(line) && start != std::string_view::npos && line.substr(start) == text;
}

}  // namespace

std::vector<Row> tableBelow(std::string_view document, std::string_view heading) {
  constexpr std::size_t kLinesOfHead = 2;  // the names of the columns, and the rule below them
  std::istringstream lines{std::string(document)};
  const std::string wanted = " " + std::string(heading);
  std::string line;
  while (std::getline(lines, line) && !isHeadingOf(line, wanted)) {
  }
  std::vector<Row> rows;
  std::size_t number = 0;
  while (std::getline(lines, line) && !isHeading(line)) {
    const bool isRow = !line.empty() && line.front() == '|';
    if (!isRow && number > 0) break;
    if (isRow && ++number > kLinesOfHead) rows.push_back(cellsOf(line));
  }
  return rows;
}

std::string readProjectFile(std::string_view name) {
  std::ifstream file(BRENNET_PROJECT_FOLDER "/" + std::string(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace brennet
