#include "cli/SchemeCheck.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "markup/text/Utf8.h"
#include "model/DecimalText.h"
#include "model/HotkeyConfig.h"
#include "model/LoadWords.h"
#include "model/SettingTable.h"

namespace brennet::cli {
namespace {

using Kind = Finding::Kind;
using Offsets = std::array<std::optional<std::size_t>, kSettingCount>;

constexpr std::uint16_t kZeroToSeven[] = {0, 1, 2, 3, 4, 5, 6, 7};

std::string inTags(std::u16string_view name) {
  return "<" + utf8Of(name) + ">";
}

// Looks at the elements of a scheme, one after the other.
class SchemeWalk {
 public:
  SchemeWalk(MarkupDocument& document, const TextPlaces& places, int scheme,
             std::vector<Finding>& findings)
      : document_(document),
        places_(places),
        group_("setting group " + std::to_string(scheme + 1)),
        findings_(findings) {}

  // The document's main position is an element of the scheme. Returns the setting that it is of.
  std::optional<SettingId> visit(Offsets& offsets) {
    const std::u16string_view name = document_.getTagName();
    const auto row = std::ranges::find(kSettings, name, &Setting::element);
    if (row == kSettings.end()) return std::nullopt;
    where_ = group_ + ", " + utf8Of(name);
    auto& offset = offsets[static_cast<std::size_t>(row->id)];
    if (offset) {
      add(Kind::Repeated, "a second " + inTags(name) + " is not read");
    } else {
      offset = document_.mainOffset();
      std::visit(*this, row->kind);
    }
    return row->id;
  }

  void operator()(const SwitchSetting& /*row*/) { number(document_.getData(), 0, 1); }
  void operator()(const ByteSetting& /*row*/) { number(document_.getData(), 0, 0xFF); }
  // A load reports what it makes of these.
  void operator()(const KeySetting& /*row*/) {}
  void operator()(const PresetSetting& /*row*/) {}
  void operator()(const QuickChatSetSetting& /*row*/) {}

  void operator()(const KeyListSetting& row) {
    forEachEntry(u"Key", row.ids, [&] {
      if (row.autocast != nullptr) number(document_.getAttrib(u"autocast"), 0, 1);
    });
  }

  void operator()(const RemapSetting& /*row*/) {
    forEachEntry(u"Key", std::span(kZeroToSeven).first(kKeyRemaps), [&] {
      forEachOf(std::array{std::u16string_view(u"Src"), std::u16string_view(u"Dest")});
    });
  }

  void operator()(const ComboSetting& /*row*/) {
    forEachOf(std::array<std::u16string_view, 4>{u"Key_A", u"Key_B", u"Key_C", u"Key_D"});
  }

  void operator()(const PhraseSetting& /*row*/) {
    forEachEntry(u"Chat", kZeroToSeven, [&] {
      const std::size_t units = document_.getData().size();
      if (units > kPhraseUnits) {
        add(Kind::Phrase,
            std::to_string(units) + " units are cut to " + std::to_string(kPhraseUnits));
      }
    });
  }

 private:
  // The main element's children must be called `name` and have one of the `ids` each.
  template <class Look>
  void forEachEntry(std::u16string_view name, std::span<const std::uint16_t> ids, Look look) {
    std::vector<bool> isThere(ids.size());
    document_.intoElem();
    while (document_.findElem()) {
      if (document_.getTagName() != name) {
        unknownElement();
        continue;
      }
      const std::u16string id = document_.getAttrib(u"id");
      const auto found = std::ranges::find(ids, parseDecimal(id));
      if (id.empty() || found == ids.end()) {
        add(Kind::Unknown, "nothing has the id " + quotedText(id));
      } else {
        auto there = isThere[static_cast<std::size_t>(found - ids.begin())];
        if (there) add(Kind::Repeated, "a second id " + quotedText(id) + "; the later one counts");
        there = true;
        if (!isDecimal(id)) {
          add(Kind::Number, "the id " + quotedText(id) + " is read as " + std::to_string(*found));
        }
      }
      look();
    }
    document_.outOfElem();
  }

  // The main element's children must be these, once each.
  template <std::size_t Count>
  void forEachOf(const std::array<std::u16string_view, Count>& names) {
    std::array<bool, Count> isThere{};
    document_.intoElem();
    while (document_.findElem()) {
      const auto found = std::ranges::find(names, document_.getTagName());
      if (found == names.end()) {
        unknownElement();
        continue;
      }
      bool& there = isThere[static_cast<std::size_t>(found - names.begin())];
      if (there) add(Kind::Repeated, "a second " + inTags(*found) + " is not read");
      there = true;
    }
    document_.outOfElem();
    for (std::size_t i = 0; i < Count; ++i) {
      if (!isThere[i]) add(Kind::Missing, inTags(names[i]) + " is missing");
    }
  }

  void unknownElement() { add(Kind::Unknown, "nothing reads " + inTags(document_.getTagName())); }

  void number(std::u16string_view text, std::int64_t from, std::int64_t to) {
    checkNumber(text, from, to, here(), where_, findings_);
  }

  [[nodiscard]] TextPosition here() const { return places_.at(*document_.mainOffset()); }

  void add(Kind kind, std::string text) {
    findings_.push_back({kind, here(), where_, std::move(text)});
  }

  MarkupDocument& document_;
  const TextPlaces& places_;
  std::string group_;
  std::string where_;
  std::vector<Finding>& findings_;
};

// What the root has beside the schemes and, in old files, beside the settings.
bool isOfRoot(std::u16string_view name) {
  return name == u"LastSaveTime" || std::ranges::find(HotkeyConfig::kSchemeElements, name) !=
                                        HotkeyConfig::kSchemeElements.end();
}

std::string choiceText(const DroppedChoice& choice) {
  if (choice.taken.empty()) return "there is no choice " + quotedText(choice.text);
  std::string text = "the choice " + quotedText(choice.text) + " cannot be made:";
  for (const TakenKey& taken : choice.taken) {
    text += (text.back() == ':' ? " " : "; ") + conflictText(taken.key, taken.conflict);
  }
  return text;
}

}  // namespace

void checkNumber(std::u16string_view text, std::int64_t from, std::int64_t to,
                 TextPosition position, const std::string& where, std::vector<Finding>& findings) {
  if (text.empty()) return;
  const std::int64_t number = parseDecimal(text);
  if (isDecimal(text) && number >= from && number <= to) return;
  findings.push_back({Kind::Number, position, where,
                      quotedText(text) + " is no number from " + std::to_string(from) + " to " +
                          std::to_string(to)});
}

void checkScheme(MarkupDocument& document, const TextPlaces& places, std::size_t offset, int scheme,
                 bool isOld, const LoadReport& report, std::vector<Finding>& findings) {
  SchemeWalk walk(document, places, scheme, findings);
  const std::string group = "setting group " + std::to_string(scheme + 1);
  Offsets offsets;
  document.resetMainPos();
  while (document.findElem()) {
    const std::u16string_view name = document.getTagName();
    if (walk.visit(offsets) || (isOld && isOfRoot(name))) continue;
    findings.push_back(
        {Kind::Unknown, places.at(*document.mainOffset()), group, "nothing reads " + inTags(name)});
  }
  // A load looks for the hero skill keys behind what it has read before, and nowhere else.
  const auto& zoom = offsets[static_cast<std::size_t>(SettingId::ZoomValue)];
  const auto& skills = offsets[static_cast<std::size_t>(SettingId::HeroSkillKey)];
  if (zoom && skills && *skills < *zoom) {
    findings.push_back({Kind::Unknown, places.at(*skills), group,
                        "nothing reads <HeroSkillKey> before <ZoomValue>"});
  }
  for (const Setting& row : kSettings) {
    if (offsets[static_cast<std::size_t>(row.id)]) continue;
    findings.push_back(
        {Kind::Missing, places.at(offset), group, inTags(row.element) + " is missing"});
  }
  for (const DroppedChoice& choice : report.droppedChoices) {
    if (choice.scheme != scheme) continue;
    const auto place = offsets[static_cast<std::size_t>(choice.setting)].value_or(offset);
    findings.push_back({Kind::Choice, places.at(place),
                        group + ", " + utf8Of(setting(choice.setting).element),
                        choiceText(choice)});
  }
}

}  // namespace brennet::cli
