#include "host/CBrennetImpl.h"
#include "tests/host/TestedBrennet.h"

namespace brennet::test {

std::shared_ptr<IBrennet> testedBrennet() {
  return std::make_shared<CBrennetImpl>();
}

}  // namespace brennet::test
