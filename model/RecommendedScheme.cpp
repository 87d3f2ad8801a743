#include "model/RecommendedScheme.h"

#include "model/CardPositions.h"
#include "model/KeyAssignment.h"
#include "model/SchemeAssignment.h"

namespace brennet {
namespace {

constexpr int kColumns = 4;

// The rows of the command card, from top to bottom.
constexpr const char kSkillKeys[][kColumns + 1] = {"ZXCV", "ASDF", "QWER"};

KeyWord skillKey(CardPosition position) {
  return KeyWord(static_cast<std::uint8_t>(kSkillKeys[position.row][position.column]), 0);
}

}  // namespace

void recommend(HotkeyScheme& scheme) {
  resetScheme(scheme);
  for (std::size_t i = 0; i < kCommandCard.size(); ++i) {
    assignKey(scheme, scheme.HeroSkillKey[i], skillKey(kCommandCard[i]));
  }
  const ItemPreset& digits = kItemPresetKeys.back();
  for (std::size_t i = 0; i < digits.size(); ++i) assignKey(scheme, scheme.ItemKey[i], digits[i]);
}

}  // namespace brennet
