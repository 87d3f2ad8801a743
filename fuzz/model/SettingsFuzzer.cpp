// Any bytes as a settings file: a load either fails or gives settings that a save keeps.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/Target.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/TextDecoding.h"
#include "model/HotkeyConfig.h"

namespace brennet {
namespace {

using fuzz::require;

bool sameSettings(const HotkeyConfig& left, const HotkeyConfig& right) {
  bool same = left.enable() == right.enable() && left.index() == right.index() &&
              left.LastSaveTime() == right.LastSaveTime();
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) same = same && left.scheme(n) == right.scheme(n);
  return same;
}

bool loadText(HotkeyConfig& config, std::u16string text) {
  MarkupDocument document;
  return document.setDoc(std::move(text)) && config.loadFrom(document);
}

std::u16string savedText(const HotkeyConfig& config) {
  MarkupDocument document;
  require(config.saveTo(document, config.LastSaveTime()));
  return document.doc();
}

void checkSettings(std::string_view bytes) {
  ResultLog log;
  HotkeyConfig config;
  if (!loadText(config, decodeText(bytes, declaredEncodingOfBytes, log).text)) return;

  // What the fixed form of a first save cannot carry is settled by loading it once.
  HotkeyConfig settled;
  require(loadText(settled, savedText(config)));
  HotkeyConfig again;
  require(loadText(again, savedText(settled)));
  require(sameSettings(settled, again));
}

}  // namespace
}  // namespace brennet

const brennet::fuzz::Grammar& brennet::fuzz::targetGrammar() {
  return settingsGrammar();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brennet::checkSettings(brennet::fuzz::bytesOf(data, size));
  return 0;
}
