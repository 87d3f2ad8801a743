#include "tests/host/TestedBrennet.h"
#include "tests/support/SharedLibrary.h"

namespace brennet::test {

IBrennet& testedBrennet() {
  static const auto get =
      reinterpret_cast<GetBrennetPtrFunction>(functionOf(BRENNET_LIBRARY, "GetBrennetPtr"));
  return *get();
}

}  // namespace brennet::test
