#include <nlohmann/json.hpp>

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "cli/Commands.h"
#include "cli/Files.h"
#include "cli/Output.h"
#include "keys/CaptureKeyNames.h"
#include "markup/text/Utf8.h"
#include "model/KeyConflicts.h"
#include "model/KeySlot.h"
#include "model/LoadWords.h"
#include "model/SettingTable.h"

namespace brennet::cli {
namespace {

struct Use {
  KeyWord key;
  std::string what;
};

template <class Keys>
void addSet(const Keys& keys, const std::string& what, std::vector<Use>& uses) {
  for (std::size_t i = 0; i < keys.size(); ++i) {
    uses.push_back({keys[i], what + " " + std::to_string(i + 1)});
  }
}

// All keys that a setting group has, sorted by their codes.
std::vector<Use> usesIn(const HotkeyScheme& scheme) {
  std::vector<Use> uses;
  for (const Setting& row : kSettings) {
    if (row.id == SettingId::ComboKey3to1) continue;  // the same keys once more
    KeySlot slot{row.id};
    for (const std::size_t count = keyCount(row.id); slot.index < count; ++slot.index) {
      uses.push_back({keyAt(scheme, slot), keyName(slot)});
    }
  }
  if (const ItemPreset* const preset = chosenItemPreset(scheme)) {
    addSet(*preset, "item preset, item", uses);
  }
  addSet(chosenQuickChatKeys(scheme), "quick-chat phrase", uses);
  std::erase_if(uses, [](const Use& use) { return !use.key.isSet(); });
  std::ranges::stable_sort(uses, {}, [](const Use& use) { return use.key.raw(); });
  return uses;
}

void listNames(Answer answer) {
  auto all = nlohmann::ordered_json::array();
  for (int code = 0; code <= 0xFF; ++code) {
    const std::string name = utf8Of(keyName(code));
    if (name.empty()) continue;
    const int stored = code << 8;
    if (answer.isJson) {
      all.push_back({{"name", name}, {"virtualKey", code}, {"stored", stored}});
    } else {
      answer.out << std::left << std::setw(16) << name << std::right << std::setw(4) << code
                 << std::setw(7) << stored << '\n';
    }
  }
  if (answer.isJson) printJson(all, answer.out);
}

void listUses(const HotkeyScheme& scheme, Answer answer) {
  auto all = nlohmann::ordered_json::array();
  for (const Use& use : usesIn(scheme)) {
    const std::string key = nameOrNumber(use.key);
    if (answer.isJson) {
      all.push_back({{"key", key}, {"stored", use.key.raw()}, {"use", use.what}});
    } else {
      answer.out << std::left << std::setw(24) << key << std::right << std::setw(6) << use.key.raw()
                 << "  " << use.what << '\n';
    }
  }
  if (answer.isJson) printJson(all, answer.out);
}

}  // namespace

ExitStatus listKeys(const std::string& file, int group, Answer answer) {
  if (file.empty()) {
    listNames(answer);
  } else {
    const HotkeyConfig config = readSettings(file);
    listUses(config.scheme(group == 0 ? HotkeyConfig::kCurrentScheme : group - 1), answer);
  }
  return kDone;
}

}  // namespace brennet::cli
