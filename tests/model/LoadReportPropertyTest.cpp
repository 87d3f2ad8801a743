// Whatever a settings file holds: everything that the load reports is true of the resulting scheme,
// and what it does not report is in there. The seeds are fixed, so failures can be repeated.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>

#include "markup/MarkupDocument.h"
#include "model/DecimalText.h"
#include "model/HotkeyConfig.h"
#include "tests/model/Keys.h"

namespace brennet {
namespace {

using enum SettingId;

constexpr int kFiles = 5000;

// The text of a scheme with keys that clash, repeated entries, and texts that are not numbers.
class RandomScheme {
 public:
  explicit RandomScheme(unsigned seed) : random_(seed) {}

  std::u16string text() {
    std::u16string text;
    addList(text, HeroSkillKey, 12);
    addList(text, MouseKey, 3);
    addList(text, ItemKey, 6);
    addList(text, SecretaryKey, 3);
    addRemaps(text);
    for (const SettingId id : {NumComboKeyIndex, QuickChatIndex}) {
      if (below(2) == 0) addElement(text, setting(id).element, decimalText(below(3)));
    }
    for (const SettingId id :
         {ShowFBlood, ShowEBlood, ChatWheelkey, WinLockMouse, QuickChatKey, HotkeyContrl}) {
      if (below(2) == 0) addElement(text, setting(id).element, entry({id}));
    }
    return text;
  }

  // The last text of each slot in the file.
  [[nodiscard]] const std::map<std::pair<SettingId, std::uint8_t>, std::u16string>& entries()
      const {
    return entries_;
  }

 private:
  unsigned below(unsigned bound) {
    return std::uniform_int_distribution<unsigned>(0, bound - 1)(random_);
  }

  std::u16string entry(KeySlot slot) {
    constexpr const char16_t* kTexts[] = {u"20736", u"22272", u"20740", u"28676", u"28932",
                                          u"12548", u"65280", u"3328",  u"Q",     u"99999"};
    std::u16string text = kTexts[below(std::size(kTexts))];
    entries_[{slot.setting, slot.index}] = text;
    return text;
  }

  static void addElement(std::u16string& out, std::u16string_view name, std::u16string_view text) {
    out.append(u"<").append(name).append(u">").append(text);
    out.append(u"</").append(name).append(u">\n");
  }

  void addList(std::u16string& out, SettingId id, unsigned keys) {
    const auto& row = std::get<KeyListSetting>(setting(id).kind);
    std::u16string inner;
    for (unsigned i = below(keys + 3); i > 0; --i) {
      const auto n = static_cast<std::uint8_t>(below(keys));
      inner += u"<Key id=\"" + decimalText(row.ids[n]) + u"\">" + entry({id, n}) + u"</Key>";
    }
    addElement(out, setting(id).element, inner);
  }

  void addRemaps(std::u16string& out) {
    std::u16string inner;
    for (unsigned n = 0; n < kKeyRemaps; ++n) {
      if (below(3) > 0) continue;
      inner += u"<Key id=\"" + decimalText(n) + u"\"><Src>20736</Src><Dest>" +
               entry(remapDestination(n)) + u"</Dest></Key>";
    }
    addElement(out, setting(HotKey).element, inner);
  }

  std::mt19937 random_;
  std::map<std::pair<SettingId, std::uint8_t>, std::u16string> entries_;
};

KeyWord keyOf(std::u16string_view text) {
  return KeyWord(static_cast<std::uint16_t>(parseDecimal(text))).without(KeyWord::kShift);
}

void expectTrue(const DroppedKey& dropped, const HotkeyScheme& scheme,
                std::u16string_view document) {
  const KeyWord left = keyAt(scheme, dropped.slot);
  if (dropped.conflict) {
    ASSERT_EQ(left, kNoKey);
    ASSERT_EQ(dropped.conflict, conflictOf(scheme, dropped.slot, dropped.key));
  } else {
    ASSERT_TRUE(!left.isSet() || left.virtualKey() == 0);
  }
  // Goes to the place in the file line by line.
  std::size_t at = 0;
  for (std::size_t line = 1; line < dropped.position.line; ++line) {
    at = document.find(u'\n', at) + 1;
  }
  const std::u16string_view rest = document.substr(at + dropped.position.column - 1);
  ASSERT_EQ(rest.front(), u'<');
  ASSERT_TRUE(rest.substr(rest.find(u'>') + 1).starts_with(dropped.text));
}

TEST(LoadReportProperty, IsTrueAndLeavesNothingOut) {
  std::size_t drops = 0;
  for (unsigned seed = 0; seed < kFiles; ++seed) {
    SCOPED_TRACE(seed);
    RandomScheme random(seed);
    MarkupDocument document;
    ASSERT_TRUE(document.setDoc(u"<KeyInfo><LastSaveTime>5</LastSaveTime>\n<KeyInfo_0>" +
                                random.text() + u"</KeyInfo_0></KeyInfo>"));
    HotkeyConfig config;
    ASSERT_TRUE(config.loadFrom(document));
    const std::vector<DroppedKey>& dropped = config.loadReport().droppedKeys;
    drops += dropped.size();
    for (const DroppedKey& key : dropped) {
      ASSERT_NO_FATAL_FAILURE(expectTrue(key, config.scheme(0), document.doc()));
    }
    for (const auto& [place, text] : random.entries()) {
      const KeySlot slot{place.first, place.second};
      const bool isDropped = std::any_of(dropped.begin(), dropped.end(),
                                         [&](const DroppedKey& key) { return key.slot == slot; });
      const bool saysNoKey = text == u"65280";
      ASSERT_EQ(isDropped, !saysNoKey && (text == u"Q" || keyAt(config.scheme(0), slot) == kNoKey))
          << static_cast<int>(slot.setting) << ' ' << int{slot.index};
      if (!isDropped) {
        ASSERT_EQ(keyAt(config.scheme(0), slot), keyOf(text));
      }
    }
  }
  EXPECT_GT(drops, std::size_t{kFiles}) << "the files are worth reading";
}

}  // namespace
}  // namespace brennet
