#pragma once

#include <QString>

// Why the library in `file` could not be loaded, in words. Windows says of a library that its file
// is missing and that a library which it needs is missing in the same words, without a name; this
// tells the two apart and names what is missing. In all other cases it is `loaderMessage`.
QString loadFailure(const QString& file, const QString& loaderMessage);
