#pragma once

#include <brennet/IBrennet.h>
#include <QString>
#include <QStringList>

// Opens the settings dialog and waits for the player. Returns what came of it, as a sentence.
QString openDialog(brennet::IBrennet& brennet, std::uint32_t saveTime);

// Opens it where nobody sees it, takes pictures of its two modes, settings.png and dota7.png in
// `folder`, and cancels it. Returns the files; fewer where the dialog has no such mode, or a file
// could not be written.
QStringList takePictures(brennet::IBrennet& brennet, const QString& folder);
