#include "check/Arguments.h"

#include <algorithm>
#include <cstring>

#include "platform/MemoryProbe.h"

namespace brennet::check {
namespace {

using platform::Writability;

// No system has smaller pages.
constexpr std::uintptr_t kPage = 4096;

// More than that is no record, but whatever was in the memory.
constexpr std::uint32_t kLargestSize = 0x10000;

bool isWritable(void* address, std::size_t size) {
  return platform::probeMemory(address, size) != Writability::NotWritable;
}

// The host's memory need not be aligned, and a short record is not a whole HotkeyBlock.
std::uint32_t sizeOf(const HotkeyBlock* block) {
  std::uint32_t size = 0;
  std::memcpy(&size, block, sizeof(size));
  return size;
}

constexpr std::uint32_t flagBit(unsigned bit) {
  return std::uint32_t{1} << bit;
}

#define BRENNET_FLAG_BIT(bit, name) | flagBit(bit)
constexpr std::uint32_t kNamedFlags = flagBit(31) BRENNET_BLOCK_FLAGS(BRENNET_FLAG_BIT);
#undef BRENNET_FLAG_BIT

// The part of a host's record that is there; the rest as in `otherwise`.
HotkeyBlock copyOf(const HotkeyBlock& block, const HotkeyBlock& otherwise) {
  HotkeyBlock copy = otherwise;
  std::memcpy(&copy, &block, std::min<std::size_t>(sizeOf(&block), sizeof(copy)));
  return copy;
}

template <class Field>
bool areEqual(const Field& one, const Field& other) {
  return std::memcmp(&one, &other, sizeof(one)) == 0;
}

}  // namespace

void checkText(Findings& findings, Slot slot, const wchar_t* text) {
  if (text == nullptr) {
    // No data folder is a folder like any other.
    if (slot != Slot::SetDataFolder) findings.report(Rule::Null, slot);
    return;
  }
  for (const wchar_t* at = text;; ++at) {
    const bool isOnNextPage = reinterpret_cast<std::uintptr_t>(at) % kPage < sizeof(*at);
    if ((at == text || isOnNextPage) && !platform::isReadable(at, sizeof(*at))) break;
    if (*at == L'\0') return;
  }
  findings.report(Rule::Text, slot);
}

void checkResult(Findings& findings, Slot slot, bool* result) {
  if (result == nullptr) {
    findings.report(Rule::Null, slot);
  } else if (!isWritable(result, sizeof(*result))) {
    findings.report(Rule::Memory, slot);
  }
}

bool Records::check(Slot slot, HotkeyBlock* block) {
  if (block == nullptr || !isWritable(block, sizeof(std::uint32_t))) {
    findings_->report(block == nullptr ? Rule::Null : Rule::Memory, slot);
    return false;
  }
  const std::uint32_t size = sizeOf(block);
  const std::string detail = "it is " + std::to_string(size);
  if (size < sizeof(size) || size > kLargestSize) {
    findings_->report(Rule::SizeNotSet, slot, detail);
    return false;
  }
  if (size != sizeof(HotkeyBlock)) findings_->report(Rule::SizeUnknown, slot, detail);
  if (isWritable(block, size)) return true;
  findings_->report(Rule::Memory, slot);
  return false;
}

void Records::noteFilled(const HotkeyBlock& block) {
  filled_ = copyOf(block, filled_);
}

void Records::checkReserved(const HotkeyBlock& block) {
  const HotkeyBlock returned = copyOf(block, filled_);
  std::string fields;
  const auto add = [&](bool isEqual, const char* name) {
    if (isEqual) return;
    if (!fields.empty()) fields += ", ";
    fields += name;
  };
  add(((returned.flags ^ filled_.flags) & ~kNamedFlags) == 0, "flags");
  add(areEqual(returned.reserved69, filled_.reserved69), "reserved69");
  add(areEqual(returned.reserved88, filled_.reserved88), "reserved88");
  if (!fields.empty()) findings_->report(Rule::Reserved, Slot::ApplyHotkeyBlock, fields);
}

}  // namespace brennet::check
