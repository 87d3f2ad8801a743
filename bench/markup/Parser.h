#pragma once

#include <span>

#include "bench/markup/SampleTexts.h"

namespace brennet::bench {

// Something that reads a document, ours or somebody else's.
struct Parser {
  const char* name;
  void (*parse)(const SampleText& text);
};

// Measures each of the parsers with each of the sample documents. Returns true, so that it can be
// called before main.
bool registerParsers(std::span<const Parser> parsers);

// Ends the program if what was measured has not been done.
void require(bool parsed);

}  // namespace brennet::bench
