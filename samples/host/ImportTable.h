#pragma once

#include <QString>
#include <QStringList>

// The names of the libraries that the Windows program or library in `file` asks the loader for, as
// written in its import table. Empty when the file needs none, cannot be read, is damaged or is
// made for another system.
QStringList importedLibraries(const QString& file);
