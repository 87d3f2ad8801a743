#include "fuzz/host/CallerMemory.h"

#include <algorithm>
#include <cstring>

namespace brennet::fuzz {
namespace {

constexpr std::size_t kPages = 17;
constexpr std::size_t kSizeField = 4;
constexpr char kUntouched = '\xA5';

bool isUntouched(const char* begin, const char* end) {
  return std::all_of(begin, end, [](char byte) { return byte == kUntouched; });
}

}  // namespace

CallerMemory::CallerMemory() : pages_(kPages, test::Access::Read) {}

void CallerMemory::prepare(std::string_view kind, std::uint32_t size, const HotkeyBlock& content) {
  const auto whole = static_cast<std::size_t>(pages_.boundary() - pages_.begin());
  std::fill(pages_.begin(), pages_.boundary(), kUntouched);
  std::size_t room = std::clamp<std::size_t>(size, kSizeField, whole - 1);
  if (kind == "odd") ++room;
  if (kind == "edge" && room > kSizeField) --room;
  if (kind == "short") room = kSizeField - 1;
  if (kind == "fixed") room = 0;
  start_ = kind == "null" ? nullptr : pages_.boundary() - room;
  if (start_ == nullptr) return;
  const std::size_t given =
      std::min({room, std::max<std::size_t>(size, kSizeField), sizeof(content)});
  HotkeyBlock announced = content;
  announced.size = size;
  std::memcpy(start_, &announced, given);
}

bool CallerMemory::hasRoomFor(std::size_t size) const {
  return start_ != nullptr && size <= static_cast<std::size_t>(pages_.boundary() - start_);
}

HotkeyBlock CallerMemory::content() const {
  HotkeyBlock content;
  std::memset(&content, 0, sizeof(content));
  const auto room = static_cast<std::size_t>(pages_.boundary() - start_);
  std::memcpy(&content, start_, std::min(room, sizeof(content)));
  return content;
}

bool CallerMemory::isUntouchedBehind(std::size_t size) const {
  const char* const start = start_ == nullptr ? pages_.boundary() : start_;
  const auto room = static_cast<std::size_t>(pages_.boundary() - start);
  return isUntouched(pages_.begin(), start) &&
         isUntouched(start + std::min(size, room), pages_.boundary());
}

}  // namespace brennet::fuzz
