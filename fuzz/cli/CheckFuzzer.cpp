// Any bytes as a settings file to be checked: the check says that a load accepts it exactly when
// one does, finds each key that the load has dropped, and names places of the file only.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "cli/SettingsCheck.h"
#include "fuzz/Target.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextDecoding.h"
#include "markup/text/TextPosition.h"
#include "markup/text/Utf8.h"
#include "model/HotkeyConfig.h"

namespace brennet {
namespace {

using fuzz::require;

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const Utf8Character character = firstUtf8Character(text);
    if (character.state != Utf8Character::State::Good) return false;
    text.remove_prefix(character.bytes);
  }
  return true;
}

void checkSettingsCheck(std::string_view bytes) {
  ResultLog log;
  MarkupDocument document;
  HotkeyConfig config;
  const bool isAccepted = document.setDoc(decodeText(bytes, declaredEncodingOfBytes, log).text) &&
                          config.loadFrom(document);
  const TextPosition end = positionAt(document.doc(), document.doc().size());

  const cli::SettingsCheck check = cli::checkSettings(bytes);
  require(check.isLoadable == isAccepted);
  const auto keys =
      std::ranges::count(check.findings, cli::Finding::Kind::Key, &cli::Finding::kind);
  require(static_cast<std::size_t>(keys) == config.loadReport().droppedKeys.size());
  for (const cli::Finding& finding : check.findings) {
    require(finding.position.line >= 1 && finding.position.line <= end.line);
    require(finding.position.column >= 1);
    require(isUtf8(finding.where) && isUtf8(finding.text));
  }
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return settingsGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkSettingsCheck(brennet::fuzz::bytesOf(data, size));
  return 0;
}
