#include "platform/TornWrite.h"

#include <algorithm>
#include <cstdint>

#include "platform/Checksum.h"

namespace brennet::platform {
namespace {

constexpr std::string_view kMagic = "brennet kept file 1\n";
constexpr std::uint64_t kNone = ~std::uint64_t{0};
constexpr int kNumberBytes = 8;

void appendNumber(std::uint64_t number, std::string& text) {
  for (int i = 0; i < kNumberBytes; ++i) text.push_back(static_cast<char>(number >> (8 * i)));
}

std::uint64_t takeNumber(std::string_view& text) {
  std::uint64_t number = 0;
  for (int i = kNumberBytes - 1; i >= 0; --i) {
    number = number << 8U | static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
  }
  text.remove_prefix(kNumberBytes);
  return number;
}

// Takes `size` bytes off `text`. Returns whether it had so many.
bool take(std::string_view& text, std::uint64_t size, std::string& bytes) {
  if (size > text.size()) return false;
  bytes = text.substr(0, static_cast<std::size_t>(size));
  text.remove_prefix(static_cast<std::size_t>(size));
  return true;
}

bool holds(std::string_view text, std::size_t at, char byte) {
  return at < text.size() && text[at] == byte;
}

}  // namespace

TornWrite::Frame TornWrite::frame(std::string_view file, const std::optional<std::string>& old,
                                  std::string_view bytes) {
  Frame frame;
  frame.start = kMagic;
  appendNumber(file.size(), frame.start);
  appendNumber(old ? old->size() : kNone, frame.start);
  appendNumber(bytes.size(), frame.start);
  frame.start += file;
  std::uint64_t sum = checksum(frame.start);
  if (old) sum = checksum(*old, sum);
  appendNumber(checksum(bytes, sum), frame.end);
  return frame;
}

std::optional<TornWrite> TornWrite::parse(std::string_view kept) {
  constexpr std::size_t kNumbers = 4;
  if (kept.size() < kMagic.size() + kNumbers * kNumberBytes || !kept.starts_with(kMagic)) return {};
  std::string_view sum = kept.substr(kept.size() - kNumberBytes);
  kept.remove_suffix(kNumberBytes);
  if (takeNumber(sum) != checksum(kept)) return {};
  kept.remove_prefix(kMagic.size());
  const std::uint64_t fileSize = takeNumber(kept);
  const std::uint64_t oldSize = takeNumber(kept);
  const std::uint64_t size = takeNumber(kept);
  TornWrite write;
  std::string old;
  const bool isWhole = take(kept, fileSize, write.file) &&
                       (oldSize == kNone || take(kept, oldSize, old)) &&
                       take(kept, size, write.bytes) && kept.empty();
  if (!isWhole) return {};
  if (oldSize != kNone) write.old = std::move(old);
  return write;
}

std::optional<std::string> TornWrite::fileIn(std::string_view start) {
  constexpr std::size_t kSizes = 3;
  if (start.size() < kMagic.size() + kSizes * kNumberBytes || !start.starts_with(kMagic)) return {};
  start.remove_prefix(kMagic.size());
  const std::uint64_t fileSize = takeNumber(start);
  start.remove_prefix((kSizes - 1) * kNumberBytes);
  std::string file;
  return take(start, fileSize, file) ? std::optional(std::move(file)) : std::nullopt;
}

bool TornWrite::mayHaveLeft(std::string_view content) const {
  const std::string_view before = old ? std::string_view(*old) : std::string_view();
  if (content.size() > std::max(before.size(), bytes.size())) return false;
  for (std::size_t at = 0; at < content.size(); ++at) {
    const char byte = content[at];
    if (byte != '\0' && !holds(before, at, byte) && !holds(bytes, at, byte)) return false;
  }
  return true;
}

}  // namespace brennet::platform
