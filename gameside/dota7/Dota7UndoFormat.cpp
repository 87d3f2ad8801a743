// The format of the journal: a line that names it, the registry's identity, the number of entries,
// each with path, name, old value and what was written since, and a checksum. Numbers are four
// bytes, little-endian; bytes and texts (UTF-16) follow their size in bytes.

#include "gameside/dota7/Dota7Undo.h"
#include "gameside/dota7/Dota7Values.h"
#include "platform/Checksum.h"
#include "platform/Utf16Bytes.h"

namespace brennet {
namespace {

using platform::RegistryValue;

constexpr std::string_view kMagic = "brennet dota7 undo 1\n";
constexpr std::size_t kNumberBytes = 4;
constexpr std::size_t kSumBytes = 16;

void appendNumber(std::size_t number, std::string& bytes) {
  bytes += platform::dwordValue(static_cast<std::uint32_t>(number)).data;
}

void appendBytes(std::string_view part, std::string& bytes) {
  appendNumber(part.size(), bytes);
  bytes += part;
}

void appendText(std::u16string_view text, std::string& bytes) {
  appendNumber(2 * text.size(), bytes);
  platform::appendUtf16Bytes(text, bytes);
}

void appendValue(const RegistryValue& value, std::string& bytes) {
  appendNumber(value.type, bytes);
  appendBytes(value.data, bytes);
}

void appendEntry(const Dota7Place& place, const Dota7Undo& undo, std::string& bytes) {
  appendText(place.first, bytes);
  appendText(place.second, bytes);
  appendNumber(undo.old ? 1 : 0, bytes);
  if (undo.old) appendValue(*undo.old, bytes);
  appendNumber(undo.written.size(), bytes);
  for (const RegistryValue& value : undo.written) appendValue(value, bytes);
}

// Takes what was appended off the front of `bytes`. What is missing is empty, and makes the whole
// invalid.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] bool isAtEnd() const { return isGood_ && bytes_.empty(); }
  [[nodiscard]] bool isGood() const { return isGood_; }

  std::string_view take(std::size_t size) {
    isGood_ = isGood_ && size <= bytes_.size();
    if (!isGood_) return {};
    const std::string_view part = bytes_.substr(0, size);
    bytes_.remove_prefix(size);
    return part;
  }
  std::uint32_t number() {
    const RegistryValue bytes{platform::kRegistryDword, std::string(take(kNumberBytes))};
    return platform::fourBytesIn(bytes).value_or(0);
  }
  std::string_view bytes() { return take(number()); }
  std::u16string text() { return platform::utf16FromBytes(bytes()); }
  RegistryValue value() {
    const std::uint32_t type = number();
    return {type, std::string(bytes())};
  }

 private:
  std::string_view bytes_;
  bool isGood_ = true;
};

bool readEntry(Reader& reader, Dota7Undos& undos) {
  Dota7Place place;
  place.first = reader.text();
  place.second = reader.text();
  Dota7Undo undo;
  if (reader.number() != 0) undo.old = reader.value();
  for (std::uint32_t count = reader.number(); count != 0 && reader.isGood(); --count) {
    undo.written.push_back(reader.value());
  }
  if (!reader.isGood() || !isDota7Value(place.first, place.second)) return false;
  return undos.try_emplace(std::move(place), std::move(undo)).second;
}

std::string sumOf(std::string_view bytes) {
  std::string sum;
  platform::appendDigits(platform::checksum(bytes), sum);
  return sum;
}

}  // namespace

std::string serialize(const Dota7Undos& undos, std::string_view registry) {
  std::string entries;
  std::size_t count = 0;
  for (const auto& [place, undo] : undos) {
    if (!isDota7Value(place.first, place.second)) continue;
    appendEntry(place, undo, entries);
    ++count;
  }
  std::string bytes(kMagic);
  appendBytes(registry, bytes);
  appendNumber(count, bytes);
  bytes += entries;
  bytes += sumOf(bytes);
  return bytes;
}

std::optional<Dota7Undos> parseDota7Undos(std::string_view bytes, std::string_view registry) {
  if (!bytes.starts_with(kMagic) || bytes.size() < kMagic.size() + kSumBytes) return {};
  const std::string_view sum = bytes.substr(bytes.size() - kSumBytes);
  bytes.remove_suffix(kSumBytes);
  if (sum != sumOf(bytes)) return {};
  Reader reader(bytes.substr(kMagic.size()));
  if (reader.bytes() != registry) return {};
  Dota7Undos undos;
  for (std::uint32_t count = reader.number(); count != 0; --count) {
    if (!readEntry(reader, undos)) return {};
  }
  return reader.isAtEnd() ? std::optional(std::move(undos)) : std::nullopt;
}

}  // namespace brennet
