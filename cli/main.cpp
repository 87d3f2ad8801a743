#include <iostream>

#include "cli/CommandLine.h"
#include "platform/CommandLine.h"

int main(int argc, char** argv) {
  const brennet::platform::Utf8Console console;
  return brennet::cli::runCommandLine(brennet::platform::utf8Arguments(argc, argv), std::cout,
                                      std::cerr);
}
