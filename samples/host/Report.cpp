#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "BlockFields.h"
#include "KeyText.h"

namespace {

using brennet::HotkeyBlock;

constexpr std::uint32_t kEnabled = 0x80000000U;
constexpr int kShownBytes = 16;

bool isEnabled(const HotkeyBlock& block) {
  return (block.flags & kEnabled) != 0;
}

QString line(const QString& name, const QString& value) {
  return QStringLiteral("  %1 %2\n").arg(name, -16).arg(value);
}

// The hero skill keys are scattered over the record; here they are in their own order.
QVector<std::uint16_t> heroSkillKeys(const HotkeyBlock& block) {
  QVector<std::uint16_t> keys;
  for (int i = 0; i < 6; ++i) keys.append(block.heroSkillKeys0to5[i]);
  keys.append(block.heroSkillKey6);
  for (int i = 0; i < 5; ++i) keys.append(block.heroSkillKeys7to11[i]);
  return keys;
}

// Keys in the shape in which the game shows them: `cells` holds the number of the key of each cell,
// row by row.
QString grid(const QString& name, const QVector<std::uint16_t>& keys, const QVector<int>& cells,
             int columns) {
  QString text;
  for (int i = 0; i < cells.size(); i += columns) {
    QString row;
    for (int column = 0; column < columns; ++column) {
      row += QStringLiteral("%1").arg(keyText(keys[cells[i + column]]), -21);
    }
    text += line(i == 0 ? name : QString(), row.trimmed());
  }
  return text;
}

QString commandCard(const HotkeyBlock& block) {
  return grid(QStringLiteral("Command card"), heroSkillKeys(block),
              {8, 9, 10, 11, 7, 4, 5, 6, 0, 1, 2, 3}, 4);
}

QString inventory(const HotkeyBlock& block) {
  QVector<std::uint16_t> keys;
  for (int i = 0; i < 6; ++i) keys.append(block.itemKeys[i]);
  return grid(QStringLiteral("Inventory"), keys, {0, 1, 2, 3, 4, 5}, 2);
}

QString meaningOf(const QVector<BlockField>& fields, const char* name) {
  for (const BlockField& field : fields) {
    if (field.name == QLatin1String(name)) return field.meaning;
  }
  return {};
}

QString schemeInWords(const HotkeyBlock& block) {
  const QVector<BlockField> fields = explainBlock(block);
  QString text = line(QStringLiteral("Feature"),
                      isEnabled(block) ? QStringLiteral("on") : QStringLiteral("off"));
  text += commandCard(block) + inventory(block);
  for (const BlockField& field : fields) {
    if (field.name.startsWith(QLatin1String("remap")) && field.meaning != QLatin1String("-")) {
      text += line(QStringLiteral("Remap"), field.meaning);
    }
  }
  constexpr const char* kShown[] = {
      "ShowFBlood",     "ShowEBlood",   "HotkeyContrl", "WinLockMouse", "QuickChatKey",
      "QuickChatIndex", "ChatWheelkey", "flags",        "QuickChat",    "ChatWheel"};
  for (const char* name : kShown) text += line(QLatin1String(name), meaningOf(fields, name));
  return text;
}

QString blockTable(const HotkeyBlock& block) {
  QString text = QStringLiteral("\nBlock for the game (%1 bytes)\n  offset  %2 %3 meaning\n")
                     .arg(sizeof(block))
                     .arg(QStringLiteral("field"), -21)
                     .arg(QStringLiteral("bytes"), -3 * kShownBytes);
  for (const BlockField& field : explainBlock(block)) {
    QString bytes = QString::fromLatin1(field.bytes.left(kShownBytes).toHex(' '));
    if (field.bytes.size() > kShownBytes) bytes += QLatin1Char('+');
    text += QStringLiteral("  %1  %2 %3 %4\n")
                .arg(field.offset, 6)
                .arg(field.name, -21)
                .arg(bytes, -3 * kShownBytes)
                .arg(field.meaning);
  }
  return text;
}

Sections sectionsOf(const HotkeyBlock& block) {
  Values values;
  for (const BlockField& field : explainBlock(block)) values.insert(field.name, field.meaning);
  return {{QString(), values}};
}

// After an import, also what differs from what was imported.
QVector<Change> registryChanges(const Before& before, const Sections& now) {
  QVector<Change> changes = changesBetween(before.gameSide.registry, now);
  const bool isImported = before.gameSide.registry.isEmpty() && !now.isEmpty();
  if (isImported) changes += changesBetween(before.registryDefaults, now);
  return changes;
}

QString orNothing(const QString& value) {
  return value.isEmpty() ? QStringLiteral("(nothing)") : value;
}

QString changesText(const char* where, const QVector<Change>& changes) {
  QString text = QStringLiteral("  %1\n").arg(QLatin1String(where));
  if (changes.isEmpty()) text += QStringLiteral("    nothing\n");
  for (const Change& change : changes) {
    text += QStringLiteral("    %1: %2 -> %3\n")
                .arg(change.name, orNothing(change.before), orNothing(change.after));
  }
  return text;
}

QJsonArray changesJson(const QVector<Change>& changes) {
  QJsonArray list;
  for (const Change& change : changes) {
    list.append(QJsonObject{{QStringLiteral("name"), change.name},
                            {QStringLiteral("before"), change.before},
                            {QStringLiteral("after"), change.after}});
  }
  return list;
}

}  // namespace

Sections filledBlock(brennet::IBrennet& brennet) {
  HotkeyBlock block{};
  block.size = sizeof(block);
  brennet.FillHotkeyBlock(&block);
  return sectionsOf(block);
}

void fillReport(brennet::IBrennet& brennet, const Before& before, Report& report) {
  report.block.size = sizeof(report.block);
  if (!brennet.FillHotkeyBlock(&report.block)) {
    report.refusals += QStringLiteral("the block could not be filled");
  }
  report.lastSaveTime = brennet.GetLastSaveTime();
  report.capsLockUsed = brennet.IsCapsLockUsed();
  report.shiftUsed = brennet.IsShiftUsed();
  const GameSide now = readGameSide();
  report.blockChanges = changesBetween(before.block, sectionsOf(report.block));
  report.preferenceChanges = changesBetween(before.gameSide.preferences, now.preferences);
  report.registryChanges = registryChanges(before, now.registry);
}

QString textReport(const Report& report, bool withBlock) {
  QString text = QStringLiteral("Settings\n");
  text += line(QStringLiteral("File"), report.settings);
  text += line(QStringLiteral("Loaded"),
               report.loaded ? QStringLiteral("yes") : QStringLiteral("no, defaults are in place"));
  for (const QString& key : report.notUsed) text += line(QStringLiteral("Not used"), key);
  text += line(QStringLiteral("Save time"), QString::number(report.lastSaveTime));
  text += QStringLiteral("\nActive scheme\n") + schemeInWords(report.block);
  if (withBlock) text += blockTable(report.block);
  text += QStringLiteral("\nWhat has changed\n");
  text += changesText("in the block", report.blockChanges);
  text += changesText("in the game's preference file", report.preferenceChanges);
  text += changesText("in the registry", report.registryChanges);
  return text;
}

QByteArray jsonReport(const Report& report) {
  QJsonArray fields;
  for (const BlockField& field : explainBlock(report.block)) {
    fields.append(QJsonObject{
        {QStringLiteral("offset"), static_cast<int>(field.offset)},
        {QStringLiteral("name"), field.name},
        {QStringLiteral("bytes"), QString::fromLatin1(field.bytes.toHex())},
        {QStringLiteral("meaning"), field.meaning},
    });
  }
  const QJsonObject root{
      {QStringLiteral("settings"), report.settings},
      {QStringLiteral("loaded"), report.loaded},
      {QStringLiteral("notUsed"), QJsonArray::fromStringList(report.notUsed)},
      {QStringLiteral("lastSaveTime"), static_cast<double>(report.lastSaveTime)},
      {QStringLiteral("enabled"), isEnabled(report.block)},
      {QStringLiteral("capsLockUsed"), report.capsLockUsed},
      {QStringLiteral("shiftUsed"), report.shiftUsed},
      {QStringLiteral("refusals"), QJsonArray::fromStringList(report.refusals)},
      {QStringLiteral("block"), fields},
      {QStringLiteral("blockChanges"), changesJson(report.blockChanges)},
      {QStringLiteral("preferenceChanges"), changesJson(report.preferenceChanges)},
      {QStringLiteral("registryChanges"), changesJson(report.registryChanges)},
  };
  return QJsonDocument(root).toJson();
}
