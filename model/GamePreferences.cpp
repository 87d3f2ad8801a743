#include "model/GamePreferences.h"

#include <exception>

#include "model/BlockBytes.h"
#include "model/BlockFiller.h"
#include "model/CardPositions.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

void addSections(War3PrefsFile& file, const HotkeyBlock& block, SettingId id, std::int32_t kind,
                 std::span<const CardPosition> positions, bool heroOnly) {
  const auto& keys = std::get<KeyListSetting>(setting(id).kind);
  for (std::size_t i = 0; i < positions.size(); ++i) {
    const KeyWord key(load16(bytesOf(block), keys.offsets[i]));
    War3HotkeySection section;
    section.kind = kind;
    section.first = positions[i].row;
    section.second = positions[i].column;
    section.metaKeyState = key.modifiers();
    section.heroOnly = heroOnly;
    section.quickCast = true;
    section.hotkey = key.virtualKey();
    file.addHotkeySection(section);
  }
}

}  // namespace

void updatePreferences(HotkeyConfig& config, War3PrefsFile& file) {
  HotkeyBlock block;
  fillBlock(config, block);
  file.setCustomKeys((block.flags & kEnableFlag) != 0);
  addSections(file, block, SettingId::HeroSkillKey, War3HotkeySection::kCommandCard, kCommandCard,
              block.skillHeroOnly != 0);
  addSections(file, block, SettingId::ItemKey, War3HotkeySection::kInventory, kInventory, false);
}

void writeGamePreferences(HotkeyConfig& config) noexcept {
  try {
    War3PrefsFile file;
    updatePreferences(config, file);
    file.save();
  } catch (const std::exception&) {
    // If memory runs out for the game's file, it stays as it is; the player's settings are not in
    // it.
  }
}

}  // namespace brennet
