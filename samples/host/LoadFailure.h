#pragma once

#include <QString>

// Why the library in `file` could not be loaded, in words. Windows reports a missing library and a
// missing library that it needs in the same words, without a name; this distinguishes the two and
// names what is missing. In all other cases it is `loaderMessage`.
QString loadFailure(const QString& file, const QString& loaderMessage);
