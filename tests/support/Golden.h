#pragma once

#include <functional>
#include <string>

// Files of the project that are made from the code or by running it. A test makes them and fails
// if the project's own differ; `make update` has the same test rewrite them (it sets
// BRENNET_UPDATE_GOLDEN and runs the suites of the sources that include this header).
namespace brennet::test {

// Fails if `actual` differs from the file `name` of the test data.
void expectGolden(const std::string& name, const std::string& actual);

// The same for files that need not be equal byte for byte: `differenceTo` is given the stored file
// (empty if there is none) and answers in words what differs, nothing if that is all right.
void expectGolden(const std::string& name, const std::string& actual,
                  const std::function<std::string(const std::string& stored)>& differenceTo);

// Fails if `actual` differs from what is between two lines of `file`, which is named from the
// project's top folder: "make update writes this: PART" and the next "make update: end". Both may
// be in comments.
void expectGoldenPart(const std::string& file, const std::string& part, const std::string& actual);

}  // namespace brennet::test
