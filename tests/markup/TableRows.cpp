#include "tests/markup/TableRows.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/TestData.h"

namespace brennet::test {

std::vector<TableRow> readTableRows(const std::string& file, char separator) {
  std::ifstream stream(testData("markup/" + file));
  EXPECT_TRUE(stream) << file;
  std::vector<TableRow> rows;
  for (std::string line; std::getline(stream, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::size_t split = line.rfind(separator);
    rows.push_back({std::u16string(line.begin(), line.begin() + static_cast<long>(split)),
                    static_cast<std::uint32_t>(std::stoul(line.substr(split + 1)))});
  }
  return rows;
}

std::u16string paddedNumber(std::size_t code, std::size_t digits) {
  const std::string number = std::to_string(code);
  return std::u16string(digits - number.size(), u'0') +
         std::u16string(number.begin(), number.end());
}

}  // namespace brennet::test
