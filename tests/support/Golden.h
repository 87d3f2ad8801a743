#pragma once

#include <string>

// Files of the project that are made from the code or by running it. A test makes them and fails
// where the project has others; `make update` has the same test rewrite them (it sets
// BRENNET_UPDATE_GOLDEN and runs the suites of the sources that include this header).
namespace brennet::test {

// Fails where `actual` is not what the file `name` of the test data holds.
void expectGolden(const std::string& name, const std::string& actual);

// Fails where `actual` is not what stands between two lines of `file`, a file of the project named
// from its top folder: "make update writes this: PART" and the next "make update: end", which may
// stand in comments.
void expectGoldenPart(const std::string& file, const std::string& part, const std::string& actual);

}  // namespace brennet::test
