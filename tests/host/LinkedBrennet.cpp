#include "host/CBrennetImpl.h"
#include "tests/host/TestedBrennet.h"

namespace brennet::test {

IBrennet& testedBrennet() {
  return CBrennetImpl::instance();
}

}  // namespace brennet::test
