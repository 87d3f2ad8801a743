#include <nlohmann/json.hpp>

#include <iomanip>
#include <ostream>

#include "cli/Changes.h"
#include "cli/Commands.h"
#include "cli/Files.h"
#include "cli/Output.h"
#include "cli/SettingWords.h"
#include "cli/SettingsCheck.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "model/DecimalText.h"

namespace brennet::cli {
namespace {

constexpr int kNameWidth = 26;

void printLine(const std::string& name, const std::string& value, std::ostream& out) {
  out << std::left << std::setw(kNameWidth) << name << shown(value) << '\n';
}

// What can be read of a document, well-formed or not; false if it is of no settings file.
bool readWhatIsThere(MarkupDocument& document, HotkeyConfig& config, std::uint32_t& saveTime) {
  if (!document.findElem(u"KeyInfo")) return false;
  config.setEnable(parseDecimal(document.getAttrib(u"enable")) == 1);
  config.setIndex(static_cast<std::uint32_t>(parseDecimal(document.getAttrib(u"index"))));
  document.intoElem();
  if (document.findElem(u"LastSaveTime")) {
    saveTime = static_cast<std::uint32_t>(parseDecimal(document.getData()));
  }
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    document.resetMainPos();
    if (!document.findElem(HotkeyConfig::kSchemeElements[static_cast<std::size_t>(n)])) {
      if (n == 0) config.LoadScheme(n, document);  // as old files have it
      continue;
    }
    document.intoElem();
    config.LoadScheme(n, document);
    document.outOfElem();
  }
  return true;
}

}  // namespace

ExitStatus showSettings(const std::string& file, int group, Answer answer) {
  const HotkeyConfig config = readSettings(file);
  const HotkeyScheme& scheme = config.scheme(group == 0 ? HotkeyConfig::kCurrentScheme : group - 1);
  if (answer.isJson) {
    const std::uint32_t number =
        group == 0 ? config.index() + 1 : static_cast<std::uint32_t>(group);
    nlohmann::ordered_json values;
    for (const SettingPart part : partsOfScheme()) values[nameOf(part)] = valueOf(scheme, part);
    const nlohmann::ordered_json whole = {{"enabled", config.enable()},
                                          {"currentGroup", config.index() + 1},
                                          {"lastSaveTime", config.LastSaveTime()},
                                          {"group", number},
                                          {"settings", std::move(values)}};
    printJson(whole, answer.out);
    return kDone;
  }
  printLine("feature", config.enable() ? "on" : "off", answer.out);
  printLine("current setting group", std::to_string(config.index() + 1), answer.out);
  printLine("save time", std::to_string(config.LastSaveTime()), answer.out);
  for (const SettingPart part : partsOfScheme()) {
    printLine(nameOf(part), valueOf(scheme, part), answer.out);
  }
  return kDone;
}

ExitStatus compareFiles(const std::string& before, const std::string& after, Answer answer) {
  const bool areRecords = isRecord(readBytes(before)) && isRecord(readBytes(after));
  const std::vector<Change> changes =
      areRecords ? changesBetween(readRecord(before), readRecord(after))
                 : changesBetween(readSettings(before), readSettings(after));
  print(changes, answer);
  return changes.empty() ? kDone : kFound;
}

ExitStatus repairFile(const std::string& file, Answer answer) {
  const std::string bytes = readBytes(file);
  const SettingsCheck check = checkSettings(bytes);
  if (check.isLoadable && check.findings.empty()) {
    if (answer.isJson) {
      printJson({{"repaired", false}}, answer.out);
    } else {
      answer.out << file << ": nothing to repair\n";
    }
    return kDone;
  }
  ResultLog log;
  MarkupDocument document;
  HotkeyConfig config;
  std::uint32_t saveTime = 0;
  document.setDoc(decodeText(bytes, declaredEncodingOfBytes, log).text);
  if (!readWhatIsThere(document, config, saveTime)) {
    throw CommandFailure{file + ": nothing of a settings file can be read"};
  }
  const std::string repaired = settingsBytes(config, saveTime);
  const std::string kept = putAside(file, bytes);
  writeBytes(file, repaired);
  if (answer.isJson) {
    printJson({{"repaired", true}, {"kept", kept}}, answer.out);
  } else {
    answer.out << file << ": repaired; the damaged file is " << kept << '\n';
  }
  return kDone;
}

}  // namespace brennet::cli
