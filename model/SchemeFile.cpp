#include "model/SchemeFile.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "markup/MarkupDocument.h"
#include "model/HotkeyConfig.h"
#include "model/SchemeDifferences.h"

namespace brennet {
namespace {

using Outcome = SchemeFileResult::Outcome;

// The message of an event in the log of the document's last load or save; nothing if there was no
// such event. The log is markup itself.
std::optional<std::u16string> loggedMessage(const MarkupDocument& document,
                                            std::u16string_view event) {
  MarkupDocument log;
  log.setDoc(u"<log>" + document.result() + u"</log>");
  log.findElem();
  log.intoElem();
  if (!log.findElem(event)) return std::nullopt;
  return log.getAttrib(u"msg");
}

// Whether something is missing or wrong in a file that could be read: an error of the markup, bytes
// that mean nothing in its encoding. A load makes the best of such a file, as it has no other; a
// file from somebody else can be sent again.
bool isDamaged(const MarkupDocument& document) {
  constexpr std::u16string_view kHarmless[] = {u"read", u"utf8_detection", u"bom", u"endian_swap",
                                               u"converted_to"};
  MarkupDocument log;
  log.setDoc(u"<log>" + document.result() + u"</log>");
  log.findElem();
  while (log.findChildElem()) {
    log.intoElem();
    if (std::ranges::find(kHarmless, log.getTagName()) == std::end(kHarmless)) return true;
    log.outOfElem();
  }
  return false;
}

SchemeFileResult fileError(const MarkupDocument& document) {
  return {Outcome::FileError, loggedMessage(document, u"file_error").value_or(std::u16string())};
}

template <class Dropped>
std::vector<Dropped> ofScheme(int number, const std::vector<Dropped>& all) {
  std::vector<Dropped> dropped;
  std::copy_if(all.begin(), all.end(), std::back_inserter(dropped),
               [number](const Dropped& each) { return each.scheme == number; });
  return dropped;
}

// A quick-cast mark by itself is nothing: files have those of the current scheme's items in all.
bool holdsAnything(const SchemeInFile& group) {
  return std::ranges::any_of(differencesOf(HotkeyScheme(), group.scheme),
                             [](SettingPart part) { return !part.isQuickCast; }) ||
         !group.report.droppedKeys.empty() || !group.report.droppedChoices.empty();
}

}  // namespace

SchemeFileResult readSchemeFile(std::u16string_view path, std::vector<SchemeInFile>& schemes) {
  MarkupDocument document;
  if (!document.load(path)) {
    if (loggedMessage(document, u"file_error")) return fileError(document);
    return {Outcome::Damaged, {}};
  }
  if (isDamaged(document)) return {Outcome::Damaged, {}};
  HotkeyConfig config;
  if (!config.loadFrom(document)) return {Outcome::Foreign, {}};
  document.resetMainPos();  // in the root, where the load was last
  const bool hasFirst = document.findElem(HotkeyConfig::kSchemeElements[0]);
  std::vector<SchemeInFile> found;
  for (int number = 0; number < HotkeyConfig::kSchemes; ++number) {
    SchemeInFile group{.number = number,
                       .scheme = config.scheme(number),
                       .report = {ofScheme(number, config.loadReport().droppedKeys),
                                  ofScheme(number, config.loadReport().droppedChoices)}};
    if ((number == 0 && hasFirst) || holdsAnything(group)) found.push_back(std::move(group));
  }
  if (found.empty()) return {Outcome::Foreign, {}};
  schemes = std::move(found);
  return {};
}

SchemeFileResult writeSchemeFile(std::u16string_view path, const HotkeyScheme& scheme,
                                 std::uint32_t lastSaveTime) {
  HotkeyConfig config;
  config.setEnable(true);
  *config.editableScheme(0) = scheme;
  MarkupDocument document;
  const bool isWritten = config.saveTo(document, lastSaveTime) && document.save(path);
  if (!isWritten) return fileError(document);
  return {loggedMessage(document, u"conversion_loss") ? Outcome::Lossy : Outcome::Done, {}};
}

}  // namespace brennet
