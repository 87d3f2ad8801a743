// Any bytes as a record to be explained: its fields lie side by side and cover what they can of it,
// and a record that differs from another in a field differs from it in words.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "brennet/HotkeyBlock.h"
#include "cli/Changes.h"
#include "cli/RecordFields.h"
#include "fuzz/Target.h"

namespace brennet {
namespace {

using fuzz::require;

void checkExplanation(std::string_view record) {
  std::size_t at = 0;
  for (const cli::RecordField& field : cli::explainRecord(record)) {
    require(field.offset == at && !field.name.empty());
    at += field.size;
  }
  require(at <= record.size());

  std::string other(record);
  if (!other.empty()) other[other.size() / 2] ^= 1;
  require(cli::changesBetween(record, record).empty());
  const bool isExplained = other.size() / 2 < at;
  require(cli::changesBetween(record, other).size() == (isExplained && !other.empty() ? 1U : 0U));
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return recordGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkExplanation(brennet::fuzz::bytesOf(data, size));
  return 0;
}
