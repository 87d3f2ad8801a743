#include "tests/support/TestData.h"

namespace brennet::test {

std::string testData(std::string_view name) {
  return projectFile("tests/data/").append(name);
}

std::string sampleData(std::string_view name) {
  return projectFile("samples/data/").append(name);
}

std::string projectFile(std::string_view name) {
  return std::string(BRENNET_SOURCE_FOLDER "/").append(name);
}

}  // namespace brennet::test
