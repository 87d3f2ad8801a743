#include "ui/history/Dota7Marks.h"

#include <QLineEdit>

#include <utility>

#include "gameside/dota7/Dota7KeyInfoManager.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/Dota7KeyFields.h"
#include "ui/capture/SettingText.h"
#include "ui/history/EditHistory.h"
#include "ui/window/Text.h"

namespace brennet {

void Dota7Marks::add(QWidget& box, const Dota7Switch& row) const {
  marks_->add(box, [history = history_, manager = manager_, &row]() -> std::optional<QString> {
    const bool wasOn = history->openingDota7().isOn(row);
    if (manager->settings().isOn(row) == wasOn) return std::nullopt;
    return onOffText(wasOn);
  });
}

void Dota7Marks::add(QLineEdit& field, const Dota7Phrase& row) const {
  marks_->addText(field, [history = history_, &field, &row]() -> std::optional<QString> {
    const QString was = toQString(history->openingDota7().phrase(row));
    if (field.text() == was) return std::nullopt;
    return phraseText(was);
  });
}

void Dota7Marks::addKeys(Dota7KeyFields& fields) const {
  for (const Dota7KeyFields::Field& row : fields.fields()) addKey(*row.field, *row.row, fields);
}

void Dota7Marks::addKey(QLineEdit& field, const Dota7KeyField& row, Dota7KeyFields& fields) const {
  const auto opening = [history = history_, &row] { return history->openingDota7().key(row); };
  KeyFieldMenu menu;
  menu.was = [history = history_, manager = manager_, &row]() -> std::optional<QString> {
    const Dota7Settings& before = history->openingDota7();
    if (manager->settings().key(row) == before.key(row)) return std::nullopt;
    const QString text = toQString(before.keyText(row)).simplified();
    return text.isEmpty() ? noneText() : text;
  };
  menu.refusal = [opening, manager = manager_, &row] {
    const Dota7KeyField* const holder = manager->settings().holderOf(row, opening());
    return holder != nullptr ? dota7FieldText(*holder) : QString();
  };
  menu.putBack = [opening, &fields, &row] { fields.put(row, opening()); };
  menu.clear = [&fields, &row] { fields.put(row, {}); };
  marks_->addKey(field, std::move(menu));
}

}  // namespace brennet
