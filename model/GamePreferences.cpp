#include "model/GamePreferences.h"

#include <array>
#include <exception>

#include "gameside/War3PrefsFile.h"
#include "model/BlockBytes.h"
#include "model/BlockFiller.h"
#include "model/SettingTable.h"

namespace brennet {
namespace {

struct Position {
  std::int32_t row;
  std::int32_t column;
};

// Where the hero skills stand on the game's command card, and the items in its inventory.
constexpr std::array<Position, kHeroSkills> kCommandCard = {{
    {2, 0},
    {2, 1},
    {2, 2},
    {2, 3},
    {1, 1},
    {1, 2},
    {1, 3},
    {1, 0},
    {0, 0},
    {0, 1},
    {0, 2},
    {0, 3},
}};
constexpr std::array<Position, kItemSlots> kInventory = {{
    {0, 0},
    {0, 1},
    {1, 0},
    {1, 1},
    {2, 0},
    {2, 1},
}};

void addSections(War3PrefsFile& file, const HotkeyBlock& block, SettingId id, std::int32_t kind,
                 std::span<const Position> positions, bool heroOnly) {
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

void updateSections(HotkeyConfig& config) {
  War3PrefsFile file;
  HotkeyBlock block;
  fillBlock(config, block);
  file.setCustomKeys((block.flags & kEnableFlag) != 0);
  addSections(file, block, SettingId::HeroSkillKey, War3HotkeySection::kCommandCard, kCommandCard,
              block.skillHeroOnly != 0);
  addSections(file, block, SettingId::ItemKey, War3HotkeySection::kInventory, kInventory, false);
  file.save();
}

}  // namespace

void writeGamePreferences(HotkeyConfig& config) noexcept {
  try {
    updateSections(config);
  } catch (const std::exception&) {
    // A file too large for our memory is the game's business; the player's settings are not in it.
  }
}

}  // namespace brennet
