#include "cli/Changes.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>

#include "cli/Output.h"
#include "cli/RecordFields.h"
#include "cli/SettingWords.h"

namespace brennet::cli {
namespace {

constexpr char kNothing[] = "(not there)";

void add(std::string name, std::string before, std::string after, std::vector<Change>& changes) {
  if (before == after) return;
  changes.push_back({std::move(name), std::move(before), std::move(after)});
}

}  // namespace

std::vector<Change> changesBetween(const HotkeyConfig& before, const HotkeyConfig& after) {
  std::vector<Change> changes;
  add("feature", before.enable() ? "on" : "off", after.enable() ? "on" : "off", changes);
  add("current setting group", std::to_string(before.index() + 1),
      std::to_string(after.index() + 1), changes);
  add("save time", std::to_string(before.LastSaveTime()), std::to_string(after.LastSaveTime()),
      changes);
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    const std::string group = "setting group " + std::to_string(n + 1) + ", ";
    for (const SettingPart part : differencesOf(before.scheme(n), after.scheme(n))) {
      changes.push_back(
          {group + nameOf(part), valueOf(before.scheme(n), part), valueOf(after.scheme(n), part)});
    }
  }
  return changes;
}

std::vector<Change> changesBetween(std::string_view recordBefore, std::string_view recordAfter) {
  const std::vector<RecordField> before = explainRecord(recordBefore);
  const std::vector<RecordField> after = explainRecord(recordAfter);
  std::vector<Change> changes;
  for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
    const RecordField& field = i < before.size() ? before[i] : after[i];
    const auto bytes = [&](std::string_view record) {
      return record.size() < field.offset ? std::string_view()
                                          : record.substr(field.offset, field.size);
    };
    if (bytes(recordBefore) == bytes(recordAfter)) continue;
    changes.push_back({field.name, i < before.size() ? before[i].meaning : kNothing,
                       i < after.size() ? after[i].meaning : kNothing});
  }
  return changes;
}

void print(const std::vector<Change>& changes, Answer answer) {
  auto all = nlohmann::ordered_json::array();
  for (const Change& change : changes) {
    if (answer.isJson) {
      all.push_back({{"name", change.name}, {"before", change.before}, {"after", change.after}});
    } else {
      answer.out << change.name << ": " << shown(change.before) << " -> " << shown(change.after)
                 << '\n';
    }
  }
  if (!answer.isJson) {
    if (changes.empty()) answer.out << "nothing differs\n";
    return;
  }
  printJson(all, answer.out);
}

}  // namespace brennet::cli
