#include "tests/agreement/RandomSettings.h"

#include <iterator>
#include <random>
#include <variant>
#include <vector>

#include "model/SettingTable.h"

namespace brennet::test {
namespace {

// The elements of the settings of some kinds.
template <class... Kinds>
const std::vector<std::string>& elements() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> found;
    for (const Setting& row : kSettings) {
      const bool isOfThem = (std::holds_alternative<Kinds>(row.kind) || ...);
      if (isOfThem) found.emplace_back(row.element.begin(), row.element.end());
    }
    return found;
  }();
  return names;
}

constexpr const char* kCodes[] = {"Q",  "4096",  "20736", "22272", "65280", "12290", "28673",
                                  "-1", "99999", "0",     "",      "20740", "20992", "32768"};
// Text as it stands in a file: Chinese of GB2312, of GBK alone, broken pairs, references.
constexpr const char* kWords[] = {
    "gg",   "\xD0\xBB\xD0\xBB", "&lt;", "&#x8C22;", "\x81\x40", "&amp;", "&", "\xFF",
    "\xD0", "&#128512;",        " ",    "\x80"};
constexpr const char* kDeclarations[] = {
    "<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n", "<?xml version='1.0' encoding='GBK'?>\n", "",
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n", "<?xml version=\"1.0\" encoding=\"big5\"?>\n"};

class Writer {
 public:
  explicit Writer(unsigned seed) : random_(seed) {}

  std::string write() {
    text_ = pick(kDeclarations);
    text_ += "<KeyInfo enable=\"" + number(3) + "\" index=\"" + number(5) + "\">\n";
    element("LastSaveTime", std::to_string(random_()));
    for (unsigned scheme = 0; scheme < 3; ++scheme) writeScheme("KeyInfo_" + number(4));
    // Now and then a file that was cut off.
    if (below(8) == 0) text_.resize(below(static_cast<unsigned>(text_.size())));
    return text_ + "</KeyInfo>\n";
  }

 private:
  // Not a distribution of the library: those differ between systems.
  unsigned below(unsigned bound) { return static_cast<unsigned>(random_() % bound); }
  std::string number(unsigned bound) { return std::to_string(below(bound)); }
  template <class List>
  std::string pick(const List& list) {
    return list[below(static_cast<unsigned>(std::size(list)))];
  }

  void element(const std::string& name, const std::string& content) {
    text_ += "<" + name + ">" + content + "</" + name + ">\n";
  }

  void writeScheme(const std::string& name) {
    text_ += "<" + name + ">\n";
    for (unsigned count = below(40); count > 0; --count) writeSetting();
    text_ += "</" + name + ">\n";
  }

  void writeSetting() {
    switch (below(5)) {
      case 0:
        return writeNumber();
      case 1:
        return writeList(pick(elements<KeyListSetting>()), "Key", [this] { return pick(kCodes); });
      case 2:
        return writeList(pick(elements<PhraseSetting>()), "Chat", [this] { return phrase(); });
      case 3:
        return writeCombo(pick(elements<ComboSetting>()));
      default:
        return writeRemaps();
    }
  }

  // Not in one expression, whose parts each compiler evaluates in an order of its own.
  void writeNumber() {
    const std::string name = pick(
        elements<SwitchSetting, ByteSetting, KeySetting, PresetSetting, QuickChatSetSetting>());
    element(name, number(130));
  }

  template <class Content>
  void writeList(const std::string& name, const std::string& entry, Content content) {
    text_ += "<" + name + ">\n";
    for (unsigned count = below(13); count > 0; --count) {
      text_ += "<" + entry + " id=\"" + number(13) + "\" autocast=\"" + number(2) + "\">" +
               content() + "</" + entry + ">\n";
    }
    text_ += "</" + name + ">\n";
  }

  void writeRemaps() {
    text_ += "<HotKey>\n";
    for (unsigned count = below(7); count > 0; --count) {
      text_ += "<Key id=\"" + number(7) + "\">";
      for (const char* const part : {"Src", "Dest"}) element(part, pick(kCodes));
      text_ += "</Key>\n";
    }
    text_ += "</HotKey>\n";
  }

  void writeCombo(const std::string& name) {
    text_ += "<" + name + ">\n";
    for (const char* const part : {"Key_A", "Key_B", "Key_C", "Key_D"}) element(part, pick(kCodes));
    text_ += "</" + name + ">\n";
  }

  std::string phrase() {
    std::string text;
    for (unsigned count = below(30); count > 0; --count) text += pick(kWords);
    return text;
  }

  std::mt19937 random_;
  std::string text_;
};

}  // namespace

std::string randomSettings(unsigned seed) {
  return Writer(seed).write();
}

}  // namespace brennet::test
