#include "model/LoadWords.h"

#include "keys/KeyWordText.h"
#include "markup/text/Utf8.h"
#include "model/KeySlot.h"

namespace brennet {
namespace {

using Reason = KeyConflict::Reason;

constexpr std::size_t kLongestText = 24;  // longer than any number of a key

bool isSpace(char16_t unit) {
  return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

bool isControl(char16_t unit) {
  return unit < u' ' || (unit >= 0x7F && unit < 0xA0);
}

}  // namespace

std::string quotedText(std::u16string_view text) {
  std::u16string words;
  bool isBetweenWords = false;
  for (const char16_t unit : text) {
    if (isSpace(unit)) {
      isBetweenWords = !words.empty();
      continue;
    }
    if (isBetweenWords) words += u' ';
    isBetweenWords = false;
    words += isControl(unit) ? u'?' : unit;
  }
  if (words.size() > kLongestText) words = words.substr(0, kLongestText) + u"...";
  return "\"" + utf8Of(words) + "\"";
}

std::string nameOrNumber(KeyWord key) {
  std::u16string text;
  if (formatKeyWord(key, text)) return utf8Of(text);
  return "key " + std::to_string(key.raw());
}

std::string conflictText(KeyWord key, const KeyConflict& conflict) {
  const std::string name = nameOrNumber(key);
  const std::string number = std::to_string(conflict.holder.index + 1);
  switch (conflict.reason) {
    case Reason::CannotBeBound:
      break;
    case Reason::Held:
    case Reason::SentByItself:
      return name + " is " + keyName(conflict.holder);
    case Reason::ItemPresetKey:
      return name + " is item " + number + " of item preset " + std::to_string(conflict.choice + 1);
    case Reason::QuickChatSetKey:
      return name + " sends quick-chat phrase " + number;
  }
  return name + " cannot be bound";
}

std::string reasonText(const DroppedKey& dropped) {
  if (!dropped.conflict) return quotedText(dropped.text) + " is no key";
  return conflictText(dropped.key, *dropped.conflict);
}

std::string lineText(const DroppedKey& dropped) {
  return "line " + std::to_string(dropped.position.line) + ", column " +
         std::to_string(dropped.position.column) + ": setting group " +
         std::to_string(dropped.scheme + 1) + ", " + keyName(dropped.slot) + ": " +
         reasonText(dropped);
}

}  // namespace brennet
