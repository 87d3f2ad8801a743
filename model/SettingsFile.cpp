// The settings file: the root element, the three schemes in it, and where the file lies.

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "markup/MarkupDocument.h"
#include "model/DecimalText.h"
#include "model/GamePreferences.h"
#include "model/HotkeyConfig.h"
#include "model/SchemeReader.h"
#include "model/SchemeWriter.h"
#include "platform/Files.h"
#include "platform/Paths.h"

namespace brennet {
namespace {

constexpr char16_t kHeader[] = u"<?xml version=\"1.0\" encoding=\"gb2312\"?>\r\n";
constexpr char16_t kRoot[] = u"KeyInfo";

// The system that the files come from does not accept longer folder names.
constexpr std::size_t kLongestFolder = 260;

// The folder of `path`: what comes before its last backslash, else before its last slash.
std::u16string_view folderOf(std::u16string_view path) {
  std::size_t end = path.find_last_of(u'\\');
  if (end == std::u16string_view::npos) end = path.find_last_of(u'/');
  return end == std::u16string_view::npos ? std::u16string_view() : path.substr(0, end);
}

// Creates the missing folder of `path`, one level. Returns whether it was missing and now exists.
bool createFolderOf(std::u16string_view path) {
  const std::u16string_view name = folderOf(path);
  if (name.empty() || name.size() > kLongestFolder) return false;
  const platform::Path folder = platform::pathFromUtf16(name);
  return !platform::folderExists(folder) && platform::createFolder(folder);
}

// Puts what was dropped of `scheme` in place of what `all` says of it.
template <class Dropped>
void takeReport(int scheme, std::vector<Dropped>& ofScheme, std::vector<Dropped>& all) {
  std::erase_if(all, [scheme](const Dropped& each) { return each.scheme == scheme; });
  for (Dropped& each : ofScheme) {
    each.scheme = scheme;
    all.push_back(std::move(each));
  }
}

}  // namespace

bool HotkeyConfig::Load(std::u16string_view path) {
  Reset();
  MarkupDocument document;
  if (!document.load(path) || !loadFrom(document)) return false;
  writeGamePreferences(*this);
  return true;
}

bool HotkeyConfig::loadFrom(MarkupDocument& document) {
  Reset();
  if (!document.findElem(kRoot)) return false;
  const std::u16string enable = document.getAttrib(u"enable");
  enable_ = !enable.empty() && parseDecimal(enable) == 1;
  const std::u16string index = document.getAttrib(u"index");
  if (!index.empty()) setIndex(static_cast<std::uint32_t>(parseDecimal(index)));

  document.intoElem();
  const std::u16string saveTime =
      document.findElem(u"LastSaveTime") ? document.getData() : std::u16string();
  if (saveTime.empty()) {
    Reset();
    return false;
  }
  lastSaveTime_ = static_cast<std::uint32_t>(parseDecimal(saveTime));

  for (int n = 0; n < kSchemes; ++n) {
    document.resetMainPos();
    if (document.findElem(kSchemeElements[static_cast<std::size_t>(n)])) {
      document.intoElem();
      LoadScheme(n, document);
      document.outOfElem();
    } else if (n == 0) {
      // Before there were three schemes, their elements stood directly in the root.
      LoadScheme(n, document);
    }
  }
  loaded_ = true;
  return true;
}

bool HotkeyConfig::LoadScheme(int scheme, MarkupDocument& document) {
  if (scheme < 0 || scheme >= kSchemes) return false;
  LoadReport report = readScheme(document, schemes_[static_cast<std::size_t>(scheme)]);
  takeReport(scheme, report.droppedKeys, loadReport_.droppedKeys);
  takeReport(scheme, report.droppedChoices, loadReport_.droppedChoices);
  return true;
}

bool HotkeyConfig::Save(std::u16string_view path, std::uint32_t lastSaveTime,
                        platform::OldContent old) {
  MarkupDocument document;
  if (!saveTo(document, lastSaveTime)) return false;
  const bool written =
      document.save(path, old) || (createFolderOf(path) && document.save(path, old));
  loaded_ = loaded_ || written;
  writeGamePreferences(*this);
  return written;
}

bool HotkeyConfig::saveTo(MarkupDocument& document, std::uint32_t lastSaveTime) const {
  document.setDoc(kHeader);  // not well-formed yet: it has no root
  // The save time is the host's; in the file it is a signed number.
  const auto signedTime = static_cast<std::int32_t>(lastSaveTime);
  bool ok = document.addElem(kRoot) && document.setAttrib(u"enable", enable_ ? u"1" : u"0") &&
            document.setAttrib(u"index", decimalText(index_)) &&
            document.addElem(u"LastSaveTime", decimalText(signedTime), MarkupDocument::kChild);
  for (int n = 0; ok && n < kSchemes; ++n) {
    ok = document.addElem(kSchemeElements[static_cast<std::size_t>(n)], {},
                          MarkupDocument::kChild) &&
         document.intoElem() && SaveScheme(n, document) && document.outOfElem();
  }
  return ok;
}

bool HotkeyConfig::SaveScheme(int scheme, MarkupDocument& document) const {
  if (scheme < 0 || scheme >= kSchemes) return false;
  const HotkeyScheme& written = schemes_[static_cast<std::size_t>(scheme)];
  // If the current index names no scheme, each keeps its own marks.
  return writeScheme(document, written, index_ < schemes_.size() ? this->scheme() : written);
}

}  // namespace brennet
