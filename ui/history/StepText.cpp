#include "ui/history/StepText.h"

#include <QCoreApplication>
#include <QStringList>

#include <utility>

#include "gameside/dota7/Dota7Values.h"
#include "model/SchemeDifferences.h"
#include "ui/capture/Dota7FieldText.h"
#include "ui/capture/SettingText.h"
#include "ui/window/Text.h"

namespace brennet {
namespace {

constexpr int kMostLines = 4;

using Content = std::optional<platform::RegistryValue>;

QString words(const char* text) {
  return QCoreApplication::translate("StepText", text);
}

QString groupText(std::uint32_t index) {
  if (index >= HotkeyConfig::kSchemes) return noneText();
  return QString::number(index + 1);
}

// The line for a change. Long texts are shortened; what looks the same then is named without its
// values.
void addLine(const QString& what, const QString& before, const QString& after, QStringList& lines) {
  lines += before == after ? what : changeText(what, before, after);
}

void addSwitch(const EditStep& step, QStringList& lines) {
  if (step.before.enable == step.after.enable) return;
  const char* const name = QT_TRANSLATE_NOOP("CHotkeySettingDlg", "启用改键");
  lines += changeText(QCoreApplication::translate("CHotkeySettingDlg", name),
                      onOffText(step.before.enable), onOffText(step.after.enable));
}

void addGroup(const EditStep& step, QStringList& lines) {
  if (step.before.index == step.after.index) return;
  lines += changeText(words(QT_TRANSLATE_NOOP("StepText", "方案")), groupText(step.before.index),
                      groupText(step.after.index));
}

void addSchemes(const EditStep& step, QStringList& lines) {
  for (std::size_t i = 0; i < step.before.schemes.size(); ++i) {
    if (step.before.schemes[i] == step.after.schemes[i]) continue;
    const HotkeyScheme& before = *step.before.schemes[i];
    const HotkeyScheme& after = *step.after.schemes[i];
    for (const SettingPart part : differencesOf(before, after)) {
      addLine(settingText(part), valueText(before, part), valueText(after, part), lines);
    }
  }
}

// A text that the registry holds as bytes.
QString textIn(const Content& value) {
  return value ? QString::fromStdString(value->data) : QString();
}

QString keyIn(const Content& value) {
  const QString text = shortened(textIn(value));
  return text.isEmpty() ? noneText() : text;
}

std::uint32_t numberIn(const Content& value) {
  return value ? platform::fourBytesIn(*value).value_or(0) : 0;
}

// Adds a line unless a player sees no difference: a value that is missing reads like an empty one.
void addChange(const QString& what, const QString& before, const QString& after,
               QStringList& lines) {
  if (before != after) lines += changeText(what, before, after);
}

// Both sides of a value that the step does not have are the same.
Dota7Edit editOf(const Dota7Step& step, std::u16string_view path, std::u16string_view name) {
  const auto found = step.find({std::u16string(path), std::u16string(name)});
  return found != step.end() ? found->second : Dota7Edit();
}

// A key whose text is the same, and only its code has changed, is named without its values.
void addDota7Key(const Dota7Step& step, const Dota7KeyField& row, const Dota7ValuePair& values,
                 const QString& name, QStringList& lines) {
  const Dota7Edit text = editOf(step, row.keyPath, values.text);
  const Dota7Edit code = editOf(step, row.keyPath, values.code);
  const QString before = keyIn(text.before);
  if (before == keyIn(text.after) && numberIn(code.before) != numberIn(code.after)) lines += name;
  addChange(name, before, keyIn(text.after), lines);
}

void addDota7(const Dota7Step& step, QStringList& lines) {
  if (step.empty()) return;
  for (const Dota7KeyField& row : dota7KeyFields()) {
    const QString name = dota7FieldText(row);
    addDota7Key(step, row, row.normal, name, lines);
    if (!row.followsCast()) continue;
    const char* const quick = QT_TRANSLATE_NOOP("StepText", "%1（快捷施法）");
    addDota7Key(step, row, row.quick, words(quick).arg(name), lines);
  }
  for (const Dota7Switch& row : dota7Switches()) {
    const Dota7Edit edit = editOf(step, kDota7ControlPath, row.valueName);
    addChange(dota7SwitchText(row), onOffText(numberIn(edit.before) != 0),
              onOffText(numberIn(edit.after) != 0), lines);
  }
  for (const Dota7Phrase& row : dota7Phrases()) {
    const Dota7Edit edit = editOf(step, kDota7PhrasesPath, row.valueName);
    const QString before = textIn(edit.before);
    const QString after = textIn(edit.after);
    if (before != after)
      addLine(dota7PhraseText(row), phraseText(before), phraseText(after), lines);
  }
}

QStringList changesOf(const EditStep& step) {
  QStringList changes;
  addSwitch(step, changes);
  addGroup(step, changes);
  addSchemes(step, changes);
  addDota7(step.dota7, changes);
  return changes;
}

}  // namespace

bool isVisible(const EditStep& step) {
  return !changesOf(step).isEmpty();
}

QString stepText(const EditStep& step) {
  const QStringList changes = changesOf(step);
  QStringList lines;
  if (!step.title.isEmpty()) lines += step.title;
  lines += changes.mid(0, kMostLines);
  if (const int more = changes.size() - kMostLines; more > 0) {
    lines += words(QT_TRANSLATE_NOOP("StepText", "以及另外 %1 项")).arg(more);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace brennet
