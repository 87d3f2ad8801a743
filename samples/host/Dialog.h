#pragma once

#include <brennet/IBrennet.h>
#include <QString>
#include <QStringList>

enum class DialogEnd { Cancelled, Saved, NotSaved };

// Opens the settings dialog and waits for the player.
DialogEnd openDialog(brennet::IBrennet& brennet, std::uint32_t saveTime);

// Opens it, saves pictures of its two modes and of the windows that its buttons open, settings.png
// and so on in `folder`, and cancels it at once. Returns the files; fewer if the dialog lacks a
// button or a file could not be written.
QStringList takePictures(brennet::IBrennet& brennet, const QString& folder);
