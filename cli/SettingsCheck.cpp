#include "cli/SettingsCheck.h"

#include <algorithm>

#include "cli/SchemeCheck.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/DoubleByteCodec.h"
#include "markup/text/EncodingDetection.h"
#include "markup/text/EncodingNames.h"
#include "markup/text/TextDecoding.h"
#include "markup/text/Utf8.h"
#include "model/DecimalText.h"
#include "model/HotkeyConfig.h"
#include "model/LoadWords.h"

namespace brennet::cli {
namespace {

using Kind = Finding::Kind;

// The first byte of the first character that means nothing in the code page; the size if all do.
// Only what settings files are written in is examined.
std::size_t firstBadByte(std::string_view bytes, const DetectedEncoding& encoding) {
  const bool isUtf8 = encoding.codePage == platform::kUtf8;
  if (!isUtf8 &&
      platform::codePageShape(encoding.codePage) != platform::CodePageShape::DoubleByte) {
    return bytes.size();
  }
  std::size_t at = encoding.markLength;
  while (at < bytes.size()) {
    const std::string_view rest = bytes.substr(at);
    if (isUtf8) {
      const Utf8Character character = firstUtf8Character(rest);
      if (character.state != Utf8Character::State::Good) return at;
      at += character.bytes;
      continue;
    }
    DoubleByteCodec& codec = DoubleByteCodec::of(encoding.codePage);
    const std::size_t length = codec.isLeadByte(static_cast<unsigned char>(rest[0])) ? 2 : 1;
    if (!codec.canDecode(rest.substr(0, length))) return at;
    at += length;
  }
  return at;
}

void checkEncoding(std::string_view bytes, const DetectedEncoding& encoding,
                   std::vector<Finding>& findings) {
  const std::u16string declared = declaredEncodingOfBytes(bytes);
  if (!declared.empty() && encodingToCodePage(declared) == 0) {
    findings.push_back(
        {Kind::Encoding,
         {},
         {},
         "nobody knows the encoding " + quotedText(declared) + "; the system's own is taken"});
  }
  const std::size_t bad = firstBadByte(bytes, encoding);
  if (bad == bytes.size()) return;
  ResultLog ignored;
  const std::u16string before =
      decodeText(bytes.substr(0, bad), declaredEncodingOfBytes, ignored).text;
  findings.push_back({Kind::Encoding,
                      positionAt(before, before.size()),
                      {},
                      "bytes that mean nothing in " + utf8Of(encoding.name)});
}

struct MarkupError {
  std::u16string_view event;  // what the document's log calls it
  std::string_view text;
};

constexpr MarkupError kMarkupErrors[] = {
    {u"first_tag_syntax", "a broken tag"},
    {u"doctype_tag_syntax", "a broken document type"},
    {u"exclamation_tag_syntax", "a broken tag"},
    {u"comment_tag_syntax", "a broken comment"},
    {u"cdata_section_syntax", "a broken CDATA section"},
    {u"unterminated_tag_syntax", "a tag without its end"},
    {u"unended_start_tag", "an element without its end tag"},
    {u"lone_end_tag", "an end tag without its element"},
    {u"no_root_element", "there is no element at all"},
    {u"root_has_sibling", "a second element beside the root"},
    {u"nulls_removed", "zero bytes, which are left out"},
};

// The document's account of the parse is a markup text itself.
void checkMarkup(const MarkupDocument& document, const TextPlaces& places,
                 std::vector<Finding>& findings) {
  MarkupDocument log;
  log.setDoc(u"<log>" + document.result() + u"</log>");
  log.findElem();
  log.intoElem();
  while (log.findElem()) {
    const auto error = std::ranges::find(kMarkupErrors, log.getTagName(), &MarkupError::event);
    if (error == std::end(kMarkupErrors)) continue;
    std::string text(error->text);
    const std::u16string tag = log.getAttrib(u"tagname");
    if (!tag.empty()) text += ": <" + utf8Of(tag) + ">";
    const auto offset = static_cast<std::size_t>(parseDecimal(log.getAttrib(u"offset")));
    findings.push_back({Kind::Markup, places.at(offset), {}, std::move(text)});
  }
}

void checkKeys(const LoadReport& report, std::vector<Finding>& findings) {
  for (const DroppedKey& key : report.droppedKeys) {
    findings.push_back(
        {Kind::Key, key.position,
         "setting group " + std::to_string(key.scheme + 1) + ", " + keyName(key.slot),
         reasonText(key)});
  }
}

// The document's main position is the root.
void checkRoot(MarkupDocument& document, const TextPlaces& places, const LoadReport& report,
               std::vector<Finding>& findings) {
  const std::size_t rootOffset = *document.mainOffset();
  const TextPosition position = places.at(rootOffset);
  checkNumber(document.getAttrib(u"enable"), 0, 1, position, "enable", findings);
  checkNumber(document.getAttrib(u"index"), 0, HotkeyConfig::kLargestIndex, position, "index",
              findings);
  document.intoElem();
  bool hasFirst = false;
  for (int n = 0; n < HotkeyConfig::kSchemes; ++n) {
    const std::u16string_view name = HotkeyConfig::kSchemeElements[static_cast<std::size_t>(n)];
    document.resetMainPos();
    if (document.findElem(name)) {
      hasFirst |= n == 0;
      const std::size_t offset = *document.mainOffset();
      document.intoElem();
      checkScheme(document, places, offset, n, false, report, findings);
      document.outOfElem();
    } else if (n == 0) {
      checkScheme(document, places, rootOffset, n, true, report, findings);
    } else {
      findings.push_back({Kind::Missing, position, "setting group " + std::to_string(n + 1),
                          "<" + utf8Of(name) + "> is missing"});
    }
  }
  if (!hasFirst) return;
  document.resetMainPos();
  while (document.findElem()) {
    const std::u16string_view name = document.getTagName();
    if (name == u"LastSaveTime" || std::ranges::find(HotkeyConfig::kSchemeElements, name) !=
                                       HotkeyConfig::kSchemeElements.end()) {
      continue;
    }
    findings.push_back({Kind::Unknown,
                        places.at(*document.mainOffset()),
                        {},
                        "nothing reads <" + utf8Of(name) + ">"});
  }
}

// Makes the root the main position. Returns whether it is that of a settings file.
bool findRoot(MarkupDocument& document) {
  while (document.outOfElem()) {
  }
  document.resetMainPos();
  return document.findElem(u"KeyInfo");
}

// Why a load failed that found a well-formed document.
std::string failureText(MarkupDocument& document) {
  return findRoot(document) ? "<LastSaveTime> is missing or empty"
                            : "the root is not <KeyInfo>: this is no settings file";
}

}  // namespace

SettingsCheck checkSettings(std::string_view bytes) {
  SettingsCheck check;
  const DetectedEncoding encoding = detectEncoding(bytes, declaredEncodingOfBytes);
  check.encoding = utf8Of(encoding.name);
  checkEncoding(bytes, encoding, check.findings);

  ResultLog log;
  MarkupDocument document;
  const bool isWellFormed = document.setDoc(decodeText(bytes, declaredEncodingOfBytes, log).text);
  const TextPlaces places(document.doc());
  checkMarkup(document, places, check.findings);
  HotkeyConfig config;
  check.isLoadable = isWellFormed && config.loadFrom(document);
  if (check.isLoadable) {
    checkKeys(config.loadReport(), check.findings);
    findRoot(document);
    checkRoot(document, places, config.loadReport(), check.findings);
  } else if (isWellFormed) {
    check.findings.push_back({Kind::Missing, {}, {}, failureText(document)});
  }
  sortByPosition(check.findings);
  return check;
}

}  // namespace brennet::cli
