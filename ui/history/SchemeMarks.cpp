#include "ui/history/SchemeMarks.h"

#include <QLineEdit>

#include <utility>

#include "model/HotkeyConfig.h"
#include "model/KeyConflicts.h"
#include "ui/capture/CaptureFields.h"
#include "ui/capture/SettingText.h"
#include "ui/capture/SlotText.h"
#include "ui/history/EditHistory.h"

namespace brennet {
namespace {

ChangeMarks::Was wasOf(const EditHistory& history, const HotkeyConfig& config, SettingPart part) {
  return [&history, &config, part]() -> std::optional<QString> {
    const HotkeyScheme& opening = history.openingScheme();
    if (!differsIn(part, opening, config.scheme())) return std::nullopt;
    return valueText(opening, part);
  };
}

}  // namespace

void SchemeMarks::add(QWidget& control, SettingPart part) const {
  marks_->add(control, wasOf(*history_, *config_, part));
}

void SchemeMarks::addChoice(QWidget& box, std::function<bool(const HotkeyScheme&)> isChosen) const {
  marks_->add(box,
              [history = history_, config = config_,
               isChosen = std::move(isChosen)]() -> std::optional<QString> {
                const bool wasChosen = isChosen(history->openingScheme());
                if (isChosen(config->scheme()) == wasChosen) return std::nullopt;
                return onOffText(wasChosen);
              });
}

void SchemeMarks::addText(QLineEdit& field,
                          std::function<QString(const HotkeyScheme&)> textIn) const {
  marks_->addText(
      field, [history = history_, &field, textIn = std::move(textIn)]() -> std::optional<QString> {
        const QString was = textIn(history->openingScheme());
        if (field.text() == was) return std::nullopt;
        return phraseText(was);
      });
}

void SchemeMarks::addKeys(CaptureFields& fields) const {
  for (const CaptureFields::Field& row : fields.fields()) addKey(*row.field, row.slot, fields);
}

void SchemeMarks::addKey(QLineEdit& field, KeySlot slot, CaptureFields& fields) const {
  const auto opening = [history = history_, slot] { return keyAt(history->openingScheme(), slot); };
  KeyFieldMenu menu;
  menu.was = wasOf(*history_, *config_, {slot.setting, slot.index});
  menu.refusal = [opening, config = config_, slot] {
    const std::optional<KeyConflict> conflict = conflictOf(config->scheme(), slot, opening());
    const bool isRefused = opening().isSet() && conflict;
    return isRefused ? conflictText(opening(), *conflict) : QString();
  };
  menu.putBack = [opening, &fields, slot] { fields.put(slot, opening()); };
  menu.clear = [&fields, slot] { fields.put(slot, kNoKey); };
  marks_->addKey(field, std::move(menu));
}

}  // namespace brennet
