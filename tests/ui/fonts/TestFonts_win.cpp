#include <QDir>
#include <QString>

#include "tests/ui/fonts/TestFonts.h"

namespace brennet::test {

// The offscreen platform does not know where Windows has its fonts. Wine uses those of the system
// below it.
void useFontSet(const char* /*name*/) {
  const QString windows = qEnvironmentVariable("windir");
  for (const QString& folder :
       {windows + QStringLiteral("/Fonts"), QStringLiteral("Z:/usr/share/fonts/truetype/wqy")}) {
    if (!QDir(folder).isEmpty(QDir::Files)) {
      qputenv("QT_QPA_FONTDIR", folder.toLocal8Bit());
      return;
    }
  }
}

void useFontSetOfTheEnvironment() {
  useFontSet("");
}

bool hasFontsOfTheSet() {
  return true;
}

}  // namespace brennet::test
