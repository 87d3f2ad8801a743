#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>

#include "cli/Commands.h"
#include "cli/Files.h"
#include "cli/Output.h"
#include "cli/SettingsCheck.h"

namespace brennet::cli {
namespace {

nlohmann::ordered_json jsonOf(const std::string& file, const SettingsCheck& check) {
  auto findings = nlohmann::ordered_json::array();
  for (const Finding& finding : check.findings) {
    findings.push_back({{"kind", kindName(finding.kind)},
                        {"line", finding.position.line},
                        {"column", finding.position.column},
                        {"where", finding.where},
                        {"text", finding.text}});
  }
  return {{"file", file},
          {"loadable", check.isLoadable},
          {"encoding", check.encoding},
          {"findings", std::move(findings)}};
}

// As compilers say it, so that editors find the places.
void print(const std::string& file, const SettingsCheck& check, std::ostream& out) {
  for (const Finding& finding : check.findings) {
    out << file << ':' << finding.position.line << ':' << finding.position.column << ": "
        << kindName(finding.kind) << ": " << finding.where << (finding.where.empty() ? "" : ": ")
        << finding.text << '\n';
  }
  const std::size_t count = check.findings.size();
  out << file << ": " << (check.isLoadable ? "a load accepts it" : "a load refuses it") << " ("
      << check.encoding << "), " << count << (count == 1 ? " finding" : " findings") << '\n';
}

ExitStatus statusOf(const SettingsCheck& check) {
  if (!check.isLoadable) return kNotLoadable;
  return check.findings.empty() ? kDone : kFound;
}

}  // namespace

ExitStatus checkFiles(const std::vector<std::string>& files, Answer answer) {
  ExitStatus status = kDone;
  auto all = nlohmann::ordered_json::array();
  for (const std::string& file : files) {
    const SettingsCheck check = checkSettings(readBytes(file));
    status = std::max(status, statusOf(check));
    if (answer.isJson) {
      all.push_back(jsonOf(file, check));
    } else {
      print(file, check, answer.out);
    }
  }
  if (answer.isJson) printJson(all, answer.out);
  return status;
}

}  // namespace brennet::cli
