#pragma once

#include <string>

namespace brennet::test {

// A settings file of random elements, keys and phrases, partly nonsense, in one of the encodings
// that players' files come in. The same seed gives the same bytes on every system.
std::string randomSettings(unsigned seed);

}  // namespace brennet::test
