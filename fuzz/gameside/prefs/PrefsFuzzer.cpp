// Any bytes as a preference file: reading, editing and writing keep every plain section.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Target.h"
#include "gameside/prefs/War3PrefsFile.h"

namespace brennet {
namespace {

using fuzz::require;

// Hotkey sections of the two known kinds, as many as the file has bytes, up to a limit.
void addHotkeySections(War3PrefsFile& file, std::string_view bytes) {
  constexpr std::size_t kMost = 40;
  for (const char byte : bytes.substr(0, kMost)) {
    const auto value = static_cast<std::uint8_t>(byte);
    War3HotkeySection section;
    section.kind = value % 2 == 0 ? War3HotkeySection::kCommandCard : War3HotkeySection::kInventory;
    section.first = value / 2 % 4;
    section.second = value / 8 % 4;
    section.hotkey = value;
    file.addHotkeySection(section);
  }
}

void checkPreferences(std::string_view bytes) {
  War3PrefsFile file = War3PrefsFile::parse(bytes);
  const std::string plain = file.serialize();
  require(War3PrefsFile::parse(plain).serialize() == plain);

  addHotkeySections(file, bytes);
  const std::string withHotkeys = file.serialize();
  require(std::string_view(withHotkeys).substr(withHotkeys.size() - plain.size()) == plain);
  require(War3PrefsFile::parse(withHotkeys).serialize() == plain);

  file.setCustomKeys(true);
  const std::string on = file.serialize();
  War3PrefsFile again = War3PrefsFile::parse(on);
  again.setCustomKeys(true);
  addHotkeySections(again, bytes);
  require(again.serialize() == on);
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return preferencesGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkPreferences(brennet::fuzz::bytesOf(data, size));
  return 0;
}
