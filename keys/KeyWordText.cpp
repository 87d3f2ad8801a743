#include "keys/KeyWordText.h"

#include <string_view>

#include "keys/CaptureKeyNames.h"

namespace brennet {
namespace {

struct ModifierText {
  std::uint8_t flag;
  std::u16string_view text;
};

// In the order of the text. Players know the mixed casing.
constexpr ModifierText kModifierTexts[] = {
    {KeyWord::kCtrl, u"CTRL + "},
    {KeyWord::kAlt, u"Alt + "},
    {KeyWord::kShift, u"SHIFT + "},
};

}  // namespace

bool formatKeyWord(KeyWord word, std::u16string& out) {
  out.clear();
  std::u16string name;
  if (!getKeyName(word.virtualKey(), name)) return false;
  for (const ModifierText& modifier : kModifierTexts) {
    if ((word.modifiers() & modifier.flag) != 0) out += modifier.text;
  }
  out += name;
  return true;
}

}  // namespace brennet
