#pragma once

#include <QString>

class QWidget;

// Files that the player names, in the dialogs of the system. Each answers with an empty name if he
// names none.
namespace brennet {

// What the files are: their extension, "png", and what the player calls them.
struct FileKind {
  QString suffix;
  QString name;
};

// A file to be read.
[[nodiscard]] QString askForFile(QWidget& parent, const QString& title, const FileKind& kind);

// A file to be written, `proposed` if the player agrees. It has the extension if the player gave it
// none. If it is there already, the player has been asked.
[[nodiscard]] QString askForNewFile(QWidget& parent, const QString& title, const FileKind& kind,
                                    const QString& proposed);

}  // namespace brennet
