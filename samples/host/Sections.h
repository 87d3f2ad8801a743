#pragma once

#include <QMap>
#include <QString>
#include <QVector>

// Named values in named sections: what the game's preference file, a registry export and, with one
// section, a block have in common.
using Values = QMap<QString, QString>;
using Sections = QMap<QString, Values>;

// Reads "[section]" and "name=value" lines. Values of registry exports are made readable: numbers
// in decimal, bytes as the UTF-8 text that they hold.
Sections parseSections(const QString& text);

// One value that has changed. A missing value is empty.
struct Change {
  QString name;  // with its section
  QString before;
  QString after;
};

// The differences, section by section. A section that only one of them has is one change.
QVector<Change> changesBetween(const Sections& before, const Sections& after);
