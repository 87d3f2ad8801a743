#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brennet::cli {

// One field of a record for the game.
struct RecordField {
  std::size_t offset;
  std::size_t size;     // in bytes
  std::string name;     // "hero skill 1"
  std::string meaning;  // in words, UTF-8: "Ctrl + Q (quick cast)"
};

// Every byte of a record, field by field in their order. A shorter, older record has the fields
// that it holds whole. Throws std::bad_alloc.
[[nodiscard]] std::vector<RecordField> explainRecord(std::string_view record);

}  // namespace brennet::cli
