#include <QByteArray>
#include <QFontDatabase>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "tests/ui/fonts/TestFonts.h"

namespace brennet::test {
namespace {

struct FontSet {
  const char* name;
  const char* chineseFamily;    // empty for none
  const char* chineseFamilies;  // what the names of all begin with
  const char* packages;         // of Debian
};

constexpr FontSet kSets[] = {
    {"dejavu", "", "", "fonts-dejavu-core"},
    {"wqy", "WenQuanYi Micro Hei", "WenQuanYi Micro Hei",
     "fonts-dejavu-core and fonts-wqy-microhei"},
    {"noto", "Noto Sans CJK SC", "Noto Sans ", "fonts-dejavu-core and fonts-noto-cjk"},
};

const FontSet* chosen = nullptr;

// Files of Chinese fonts also have families for other countries, and Qt adds names of its own.
bool isExpected(const QString& family) {
  if (family == QLatin1String("Sans Serif") || family == QLatin1String("Serif") ||
      family == QLatin1String("Monospace")) {
    return true;
  }
  return family.startsWith(QLatin1String("DejaVu Sans")) ||
         (qstrlen(chosen->chineseFamilies) != 0 &&
          family.startsWith(QLatin1String(chosen->chineseFamilies)));
}

}  // namespace

void useFontSet(const char* name) {
  chosen = std::find_if(std::begin(kSets), std::end(kSets),
                        [&](const FontSet& set) { return qstrcmp(set.name, name) == 0; });
  if (chosen == std::end(kSets)) {
    std::fprintf(stderr, "There is no font set \"%s\"; there are dejavu, wqy and noto.\n", name);
    std::exit(2);
  }
  qputenv("FONTCONFIG_FILE", QByteArray(BRENNET_FONT_SETS "/").append(name).append(".conf"));
  for (const char* const variable : {"FONTCONFIG_PATH", "FONTCONFIG_SYSROOT", "FC_LANG"}) {
    qunsetenv(variable);
  }
}

void useFontSetOfTheEnvironment() {
  const QByteArray name = qgetenv("BRENNET_TEST_FONTS");
  useFontSet(name.isEmpty() ? "dejavu" : name.constData());
}

bool hasFontsOfTheSet() {
  const QStringList families = QFontDatabase().families();
  const auto has = [&](const char* family) {
    return qstrlen(family) == 0 || families.contains(QLatin1String(family));
  };
  const auto stray = std::find_if_not(families.begin(), families.end(), isExpected);
  if (stray != families.end()) {
    std::fprintf(stderr, "The font %s is not of the font set \"%s\".\n", qUtf8Printable(*stray),
                 chosen->name);
    return false;
  }
  if (has("DejaVu Sans") && has(chosen->chineseFamily)) return true;
  std::fprintf(stderr, "The font set \"%s\" takes the packages %s: tools/setup.sh test\n",
               chosen->name, chosen->packages);
  return false;
}

}  // namespace brennet::test
