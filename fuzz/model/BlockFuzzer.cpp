// Any bytes as a block that the game hands back, again and again: what was taken in is delivered
// the same way from then on.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "fuzz/Target.h"
#include "model/BlockFiller.h"
#include "model/BlockMerger.h"

namespace brennet {
namespace {

using fuzz::require;

// The first byte chooses the current scheme, the rest are records, the last one shorter.
void checkBlocks(std::string_view bytes) {
  HotkeyConfig config;
  if (!bytes.empty()) {
    config.setIndex(static_cast<unsigned char>(bytes[0]) % 4U);
    bytes.remove_prefix(1);
  }
  while (!bytes.empty()) {
    HotkeyBlock current;
    fillBlock(config, current);
    HotkeyBlock returned = current;
    const std::size_t size = std::min(bytes.size(), sizeof(returned));
    std::memcpy(&returned, bytes.data(), size);
    bytes.remove_prefix(size);
    mergeBlock(current, returned, size, config);

    HotkeyBlock delivered;
    fillBlock(config, delivered);
    require(delivered.size == sizeof(delivered));
    require(!mergeBlock(delivered, delivered, sizeof(delivered), config));
    require(delivered.quickChat[sizeof(delivered.quickChat) - 1] == '\0');
    require(delivered.chatWheel[sizeof(delivered.chatWheel) - 1] == '\0');
  }
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return recordGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkBlocks(brennet::fuzz::bytesOf(data, size));
  return 0;
}
