#include "tests/support/TestData.h"

namespace brennet::test {

std::string testData(std::string_view name) {
  return std::string(BRENNET_SOURCE_FOLDER "/tests/data/").append(name);
}

std::string sampleData(std::string_view name) {
  return std::string(BRENNET_SOURCE_FOLDER "/samples/data/").append(name);
}

}  // namespace brennet::test
