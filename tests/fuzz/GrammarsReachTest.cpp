// Inputs from the grammars get past the first checks of the code that reads them, and reach all of
// that code.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <set>
#include <variant>

#include "fuzz/grammar/Grammar.h"
#include "gameside/prefs/War3PrefsFile.h"
#include "markup/DeclaredEncoding.h"
#include "markup/MarkupDocument.h"
#include "markup/ResultLog.h"
#include "markup/text/EncodingDetection.h"
#include "model/BlockBytes.h"
#include "model/HotkeyConfig.h"
#include "model/SettingTable.h"
#include "platform/RegFile.h"

namespace brennet {
namespace {

constexpr std::uint32_t kDocuments = 1000;

template <class Visitor>
void forDocuments(const fuzz::Grammar& grammar, Visitor visit) {
  for (std::uint32_t seed = 0; seed < kDocuments; ++seed) {
    fuzz::Choices choices(seed);
    visit(grammar.document(choices));
  }
}

TEST(SettingsGrammar, ReachesEverySettingOfTheFile) {
  std::set<SettingId> dropped;
  std::array<bool, kSettingCount> isNamed{};
  std::size_t loaded = 0;
  forDocuments(fuzz::settingsGrammar(), [&](const std::string& bytes) {
    ResultLog log;
    MarkupDocument document;
    HotkeyConfig config;
    if (!document.setDoc(decodeText(bytes, declaredEncodingOfBytes, log).text) ||
        !config.loadFrom(document))
      return;
    ++loaded;
    for (const DroppedKey& key : config.loadReport().droppedKeys) dropped.insert(key.slot.setting);
    for (std::size_t i = 0; i < kSettingCount; ++i) {
      const std::u16string tag = u"<" + std::u16string(kSettings[i].element) + u">";
      isNamed[i] = isNamed[i] || document.doc().find(tag) != std::u16string::npos;
    }
  });
  EXPECT_GT(loaded, kDocuments / 2);
  EXPECT_LT(loaded, kDocuments);
  for (std::size_t i = 0; i < kSettingCount; ++i) {
    EXPECT_TRUE(isNamed[i]) << testing::PrintToString(kSettings[i].element);
  }
  EXPECT_GT(dropped.size(), 8U) << "keys of most settings are refused at times";
}

TEST(PreferencesGrammar, HasSectionsThatStayAndSuchThatGo) {
  std::size_t kept = 0;
  std::size_t gone = 0;
  std::size_t switched = 0;
  forDocuments(fuzz::preferencesGrammar(), [&](const std::string& bytes) {
    War3PrefsFile file = War3PrefsFile::parse(bytes);
    const std::string before = file.serialize();
    if (!before.empty()) ++kept;
    if (bytes.find("Hotkeys 20]") != std::string::npos &&
        before.find("Hotkeys 20]") == std::string::npos) {
      ++gone;
    }
    file.setCustomKeys(true);
    if (file.serialize() != before) ++switched;
  });
  EXPECT_GT(kept, kDocuments / 2);
  EXPECT_GT(gone, kDocuments / 10);
  EXPECT_GT(switched, kDocuments / 10);
}

TEST(RegFileGrammar, HasFilesThatSetValuesOfAllTypes) {
  constexpr std::u16string_view kKey = u"HKEY_CURRENT_USER\\Software\\Tollamere";
  std::size_t merged = 0;
  std::set<std::uint32_t> types;
  forDocuments(fuzz::regFileGrammar(), [&](const std::string& bytes) {
    platform::RegFile file;
    if (file.merge(bytes)) ++merged;
    for (const std::u16string_view below : {u"", u"\\CONTROL", u"\\PHRASES"}) {
      for (const std::u16string_view name : {u"", u"N", u"ItemKeyC0", u"SLegacyKeys"}) {
        const auto* value = file.find(std::u16string(kKey).append(below), name);
        if (value != nullptr) types.insert(value->type);
      }
    }
  });
  EXPECT_GT(merged, kDocuments / 2);
  EXPECT_LT(merged, kDocuments);
  for (const std::uint32_t type : {1U, 2U, 3U, 4U, 7U}) EXPECT_TRUE(types.contains(type)) << type;
}

TEST(RecordGrammar, ChangesEveryByteThatHasAMeaning) {
  HotkeyBlock everything;
  std::memset(&everything, 0, sizeof(everything));
  std::string seen(sizeof(HotkeyBlock), '\0');
  forDocuments(fuzz::recordGrammar(), [&](const std::string& bytes) {
    for (std::size_t at = 1; at < bytes.size(); ++at) {
      char& byte = seen[(at - 1) % seen.size()];
      byte = static_cast<char>(byte | bytes[at]);
    }
  });
  const auto isReserved = [](std::size_t at) {
    return (at >= 2 && at < 4) || (at >= 5 && at < 7) || at == 37 || (at >= 69 && at < 80) ||
           (at >= 88 && at < 112);
  };
  for (std::size_t at = 0; at < seen.size(); ++at) {
    EXPECT_EQ(seen[at] == '\0', isReserved(at)) << at;
  }
}

TEST(TextFileGrammar, HasFilesInEveryKindOfEncoding) {
  std::set<platform::CodePage> codePages;
  forDocuments(fuzz::textFileGrammar(), [&](const std::string& bytes) {
    codePages.insert(
        detectEncoding(std::string_view(bytes).substr(1), declaredEncodingOfBytes).codePage);
  });
  // Not every system knows GB18030 as a code page.
  const platform::CodePage gb18030 =
      detectEncoding("<?xml version=\"1.0\" encoding=\"gb18030\"?><a>\xC4\xE3</a>",
                     declaredEncodingOfBytes)
          .codePage;
  for (const platform::CodePage codePage :
       {platform::kUtf8, platform::kUtf16LittleEndian, platform::kUtf16BigEndian,
        platform::kUtf32LittleEndian, platform::kUtf32BigEndian, platform::CodePage{936},
        platform::CodePage{950}, gb18030, platform::CodePage{1252}}) {
    EXPECT_TRUE(codePages.contains(codePage)) << codePage;
  }
}

TEST(MarkupGrammar, HasWellFormedTextsAndEveryErrorThatIsReported) {
  std::size_t wellFormed = 0;
  std::u16string events;
  forDocuments(fuzz::markupGrammar(), [&](const std::string& bytes) {
    MarkupDocument document;
    if (document.setDoc(std::u16string(bytes.begin(), bytes.end()))) ++wellFormed;
    events += document.result();
  });
  EXPECT_GT(wellFormed, kDocuments / 10);
  for (const std::u16string_view event :
       {u"first_tag_syntax", u"doctype_tag_syntax", u"exclamation_tag_syntax",
        u"comment_tag_syntax", u"cdata_section_syntax", u"type=\"start_tag\"", u"type=\"end_tag\"",
        u"type=\"processing_instruction\"", u"type=\"document_type\"", u"type=\"comment\"",
        u"type=\"cdata_section\"", u"type=\"exclamation_tag\"", u"unended_start_tag",
        u"lone_end_tag", u"no_root_element", u"root_has_sibling"}) {
    EXPECT_NE(events.find(event), std::u16string::npos) << testing::PrintToString(event);
  }
}

}  // namespace
}  // namespace brennet
