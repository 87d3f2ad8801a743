// The mutators that libFuzzer asks for, from the grammar that a target names.

#include <algorithm>
#include <cstring>
#include <string>

#include "fuzz/Target.h"

namespace {

using brennet::fuzz::Choices;

std::string_view bytesAt(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

std::size_t store(std::string_view next, std::uint8_t* out, std::size_t most) {
  const std::size_t size = std::min(next.size(), most);
  std::memcpy(out, next.data(), size);
  return size;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  Choices choices(seed);
  const std::string next = brennet::fuzz::mutated(
      brennet::fuzz::targetGrammar(), bytesAt(data, size), most, choices, LLVMFuzzerMutate);
  return store(next, data, most);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1,
                                                 const std::uint8_t* data2, std::size_t size2,
                                                 std::uint8_t* out, std::size_t most,
                                                 unsigned seed) {
  Choices choices(seed);
  const std::string next =
      brennet::fuzz::targetGrammar().crossed(bytesAt(data1, size1), bytesAt(data2, size2), choices);
  return store(next, out, most);
}
