#pragma once

#include <QMap>
#include <QString>
#include <QVector>

// Named values in named sections: what the game's preference file, a registry export and, with one
// section, a block have in common.
using Values = QMap<QString, QString>;
using Sections = QMap<QString, Values>;

// Reads "[section]" and "name=value" lines. Values of registry exports are put as a person reads
// them: numbers in decimals, bytes as the UTF-8 text that they are.
Sections parseSections(const QString& text);

// One value that is not as it was. Empty where there is none.
struct Change {
  QString name;  // with its section
  QString before;
  QString after;
};

// What is different, section by section. A section that only one of them has is one change.
QVector<Change> changesBetween(const Sections& before, const Sections& after);
