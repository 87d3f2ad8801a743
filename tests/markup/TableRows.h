#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brennet::test {

struct TableRow {
  std::u16string name;
  std::uint32_t code;
};

// The rows `name<separator>code` of a file in the test data, except lines that begin with "#".
// Fails the test if the file cannot be read.
std::vector<TableRow> readTableRows(const std::string& file, char separator);

// `code` in decimal, padded with zeros to `digits` digits.
std::u16string paddedNumber(std::size_t code, std::size_t digits);

}  // namespace brennet::test
