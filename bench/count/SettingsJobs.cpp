// The settings in memory: their file, the record for the game, and the game's preference file.

#include <cstdlib>
#include <string>

#include "bench/count/Count.h"
#include "bench/count/Jobs.h"
#include "bench/model/SampleSettings.h"
#include "gameside/prefs/War3PrefsFile.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextEncoding.h"
#include "model/BlockFiller.h"
#include "model/BlockMerger.h"
#include "model/KeyConflicts.h"
#include "model/RecommendedScheme.h"

namespace brennet::bench {
namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void load() {
  ResultLog log;
  MarkupDocument document;
  require(document.setDoc(decodeText(sampleBytes(), declaredEncodingOfBytes, log).text));
  HotkeyConfig config;
  require(config.loadFrom(document));
}

void save() {
  constexpr std::uint32_t kSaveTime = 1700000000;
  MarkupDocument document;
  require(sampleConfig().saveTo(document, kSaveTime));
  ResultLog log;
  require(!encodeText(document.doc(), u"gb2312", log).empty());
}

// Every key with every modifier, asked of everything that may have it.
void askForAllKeys() {
  const HotkeyScheme& scheme = sampleConfig().scheme();
  constexpr std::uint8_t kModifiers[] = {0, KeyWord::kCtrl, KeyWord::kAlt,
                                         KeyWord::kCtrl | KeyWord::kAlt};
  int taken = 0;
  for (const std::uint8_t modifiers : kModifiers) {
    for (int vk = 0; vk <= 0xFF; ++vk) {
      const KeyWord key(static_cast<std::uint8_t>(vk), modifiers);
      taken += isKeyAssignable(scheme, key) ? 0 : 1;
      taken += isItemPresetKey(scheme, key) || isQuickChatKey(scheme, key) ? 1 : 0;
    }
  }
  require(taken > 0);
}

// What the game gives back: the block of a scheme in which nearly everything is different.
void countBlock() {
  HotkeyConfig changed;
  recommend(*changed.editableScheme(0));
  HotkeyBlock current;
  HotkeyBlock returned;
  fillBlock(sampleConfig(), current);
  fillBlock(changed, returned);
  countAgain("fill the record", [] {
    HotkeyBlock block;
    fillBlock(sampleConfig(), block);
  });
  HotkeyConfig configs[] = {sampleConfig(), sampleConfig()};
  HotkeyConfig* config = configs;
  countAgain("take the record back", [&] {
    require(mergeBlock(current, returned, sizeof(returned), *config));
    ++config;
  });
}

// The game's own file, with a section for each place of the command card and of the inventory.
void writePreferences(const std::string& bytes) {
  War3PrefsFile file = War3PrefsFile::parse(bytes);
  file.setCustomKeys(true);
  for (std::int32_t row = 0; row < 3; ++row) {
    for (std::int32_t column = 0; column < 4; ++column) {
      War3HotkeySection section;
      section.kind = War3HotkeySection::kCommandCard;
      section.first = row;
      section.second = column;
      section.hotkey = 'Q';
      file.addHotkeySection(section);
    }
  }
  require(file.serialize().size() > bytes.size() / 2);
}

}  // namespace

void countSettings() {
  countAgain("load", load);
  countAgain("save", save);
  countAgain("look for conflicts", askForAllKeys);
  countBlock();
  const std::string preferences = samplePreferences();
  countAgain("preference file", [&] { writePreferences(preferences); });
}

}  // namespace brennet::bench
