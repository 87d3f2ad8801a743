#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

// The texts of the library's windows in the user's language, for as long as this object lives. The
// library itself installs none. The application object must outlive this object.
class Catalogue {
 public:
  // Uses the first of `languages` (such as "zh-Hans-CN" and "en-US", the preferred one first) that
  // has a catalogue in `folder`, brennet_<language>.qm, or else the English one. If there is none
  // at all, the windows show the texts of their forms.
  Catalogue(const QString& folder, const QStringList& languages);
  // The system's languages, and the folder "translations" beside the program.
  Catalogue();

  // The file that is used; empty if there is none.
  [[nodiscard]] QString file() const { return translator_.filePath(); }

 private:
  QTranslator translator_;
};
