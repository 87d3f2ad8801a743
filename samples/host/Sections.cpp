#include "Sections.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

// Sections with more values than that are counted, not listed.
constexpr int kListed = 6;

QString bytesInWords(const QString& hexadecimal) {
  const QByteArray bytes =
      QByteArray::fromHex(QString(hexadecimal).remove(QLatin1Char(',')).toLatin1());
  return QLatin1Char('"') + QString::fromUtf8(bytes) + QLatin1Char('"');
}

QString valueInWords(const QString& value) {
  const auto behind = [&](const char* type) { return value.mid(static_cast<int>(qstrlen(type))); };
  if (value.startsWith(QLatin1String("dword:"))) {
    return QString::number(behind("dword:").toUInt(nullptr, 16));
  }
  return value.startsWith(QLatin1String("hex:")) ? bytesInWords(behind("hex:")) : value;
}

QString unquoted(const QString& name) {
  const bool isQuoted = name.size() > 1 && name.startsWith(QLatin1Char('"'));
  return isQuoted ? name.mid(1, name.size() - 2) : name;
}

QString inWords(const Values& values) {
  if (values.size() > kListed) return QStringLiteral("%1 values").arg(values.size());
  QStringList list;
  for (auto value = values.begin(); value != values.end(); ++value) {
    list += value.key() + QLatin1Char('=') + value.value();
  }
  return list.isEmpty() ? QStringLiteral("no values") : list.join(QStringLiteral(", "));
}

void addChanges(const QString& section, const Values& before, const Values& after,
                QVector<Change>& changes) {
  Values all = before;
  for (auto value = after.begin(); value != after.end(); ++value) all.insert(value.key(), {});
  for (const QString& name : all.keys()) {
    if (before.value(name) == after.value(name)) continue;
    changes.append(
        {(section + QLatin1Char(' ') + name).trimmed(), before.value(name), after.value(name)});
  }
}

}  // namespace

Sections parseSections(const QString& text) {
  // Long values of a registry export continue after a backslash at the end of the line.
  static const QRegularExpression kContinued(QStringLiteral("\\\\\\r?\\n\\s*"));
  static const QRegularExpression kLineEnd(QStringLiteral("\\r?\\n"));
  Sections sections;
  QString section;
  for (const QString& line : QString(text).remove(kContinued).split(kLineEnd)) {
    if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
      section = line;
      sections[section];
      continue;
    }
    const int equals = line.indexOf(QLatin1Char('='));
    if (equals <= 0) continue;
    sections[section].insert(unquoted(line.left(equals)), valueInWords(line.mid(equals + 1)));
  }
  return sections;
}

QVector<Change> changesBetween(const Sections& before, const Sections& after) {
  Sections all = before;
  for (auto section = after.begin(); section != after.end(); ++section) all[section.key()];
  QVector<Change> changes;
  for (const QString& section : all.keys()) {
    if (!before.contains(section)) {
      changes.append({section, {}, inWords(after[section])});
    } else if (!after.contains(section)) {
      changes.append({section, inWords(before[section]), {}});
    } else {
      addChanges(section, before[section], after[section], changes);
    }
  }
  return changes;
}
