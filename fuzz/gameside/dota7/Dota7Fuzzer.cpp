// Any registry, and a player of DotA 7 who changes settings in it: Cancel gives back every value,
// and so does the next run where this one does not end; OK leaves there what was shown.
//
// Input: the registry as a .reg file. What the player does follows from its bytes.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Target.h"
#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "platform/RegFile.h"
#include "tests/support/TempFolder.h"

namespace brennet {
namespace {

using fuzz::Choices;
using fuzz::require;
using platform::RegFile;

constexpr std::size_t kMostSteps = 12;

// The file that stands for the registry, in a folder of this process.
class RegistryFile {
 public:
  RegistryFile() { setenv("BRENNET_REGISTRY", file_.c_str(), 1); }

  void write(std::string_view bytes) const { test::writeBytes(file_, bytes); }
  [[nodiscard]] std::string bytes() const { return test::readBytes(file_); }

 private:
  test::TempFolder folder_;
  std::filesystem::path file_ = folder_ / "registry.reg";
};

// Everything that the pages show, in both cast modes.
std::vector<std::u16string> shownBy(Dota7Settings& settings) {
  std::vector<std::u16string> shown;
  const Dota7Cast before = settings.cast();
  for (const Dota7Cast cast : {Dota7Cast::Normal, Dota7Cast::Quick}) {
    settings.setCast(cast);
    for (const Dota7KeyField& row : dota7KeyFields()) shown.push_back(settings.keyText(row));
  }
  settings.setCast(before);
  for (const Dota7Switch& row : dota7Switches()) shown.push_back(settings.isOn(row) ? u"1" : u"0");
  for (const Dota7Phrase& row : dota7Phrases()) shown.push_back(settings.phrase(row));
  return shown;
}

void press(Dota7Settings& settings, Choices& choices) {
  constexpr int kModifiers[] = {Dota7Key::kNoModifier, Dota7Key::kCtrl, Dota7Key::kAlt, 0x10};
  constexpr int kCodes[] = {0, 'A', 'Q', 0x11, 0x67, 0xFF};
  const Dota7KeyField& field = choices.pick(dota7KeyFields());
  const Dota7Key key{choices.pick(kCodes), choices.pick(kModifiers)};
  if (!settings.storeKey(field, key)) settings.clearKey(field);
}

void step(Dota7KeyInfoManager& manager, Choices& choices) {
  constexpr std::u16string_view kPhrases[] = {u"", u"gg", u"\u8C22\u8C22", u"\U0001F600"};
  Dota7Settings& settings = manager.settings();
  switch (choices.below(8)) {
    case 0:
      return settings.setCast(choices.oneIn(2) ? Dota7Cast::Normal : Dota7Cast::Quick);
    case 1:
      return choices.oneIn(3) ? settings.reset() : manager.refresh();
    case 2:
      return settings.setOn(choices.pick(dota7Switches()), choices.oneIn(2));
    case 3:
    case 4: {
      std::u16string text;
      for (std::size_t n = choices.below(130); n > 0; --n) text += choices.pick(kPhrases);
      return settings.setPhrase(choices.pick(dota7Phrases()), text, choices.oneIn(2));
    }
    default:
      press(settings, choices);
  }
}

bool hasAllKeys(const RegFile& registry) {
  const auto hasKey = [&](std::u16string_view path) {
    return registry.hasKey(std::u16string(u"HKEY_CURRENT_USER\\").append(path));
  };
  return hasKey(kDota7ControlPath) && hasKey(kDota7PhrasesPath);
}

// What a player does, up to the end of the run or of the process.
void play(Dota7KeyInfoManager& manager, Choices& choices) {
  manager.beginRun();
  manager.settings().load();
  for (std::size_t n = choices.below(kMostSteps); n > 0; --n) step(manager, choices);
}

void checkUndone(std::string_view bytes, const RegistryFile& file, Choices& choices) {
  RegFile before;
  const bool isRegistry = before.merge(bytes);
  {
    Dota7KeyInfoManager manager;
    play(manager, choices);
    if (choices.oneIn(2)) manager.cancelChanges();
  }
  Dota7KeyInfoManager next;
  next.beginRun();
  RegFile after;
  require(after.merge(file.bytes()) == isRegistry);
  require(after == before);
}

void checkAccepted(std::string_view bytes, const RegistryFile& file, Choices& choices) {
  Dota7KeyInfoManager manager;
  play(manager, choices);
  const std::vector<std::u16string> shown = shownBy(manager.settings());
  manager.acceptChanges();
  RegFile before;
  if (!before.merge(bytes)) return require(file.bytes() == bytes);
  if (!hasAllKeys(before)) return;  // what is changed cannot be written
  Dota7KeyInfoManager next;
  next.beginRun();
  next.settings().load();
  require(shownBy(next.settings()) == shown);
}

void checkPlayer(std::string_view bytes) {
  static const RegistryFile file;
  file.write(bytes);
  Choices choices(static_cast<std::uint32_t>(std::hash<std::string_view>()(bytes)));
  const auto check = choices.oneIn(3) ? checkAccepted : checkUndone;
  check(bytes, file, choices);
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return regFileGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkPlayer(brennet::fuzz::bytesOf(data, size));
  return 0;
}
