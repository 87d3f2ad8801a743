#include "Options.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QOperatingSystemVersion>
#include <cstdio>

namespace {

std::optional<Options> refuse(const QString& message) {
  std::fprintf(stderr, "brennet-host: %s\n", qPrintable(message));
  return std::nullopt;
}

QCommandLineOption valued(const char* name, const char* value, const char* description) {
  return {QLatin1String(name), QLatin1String(description), QLatin1String(value)};
}

QCommandLineOption flag(const char* name, const char* description) {
  return {QLatin1String(name), QLatin1String(description)};
}

void declareOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral("Loads the Brennet library as a game-platform client does."));
  parser.addOptions({
      {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this list.")},
      valued("library", "FILE", "The library to load; default: the one beside this program."),
      valued("settings", "FILE", "The player's settings file."),
      valued("data", "DIR", "The folder that holds Tollamere.reg."),
      valued("profile", "DIR",
             "The user profile folder, where Documents/Warcraft III lies. "
             "Without it no preference file is touched. Not under Windows, where it is the folder "
             "of the user who runs this program."),
      flag("block", "Print every field of the block for the game."),
      valued("save-block", "FILE", "Write the block to FILE."),
      valued("apply-block", "FILE", "Hand the block in FILE back to the library."),
      flag("dialog", "Open the settings dialog."),
      valued("pictures", "DIR", "Put pictures of the dialog and its windows into DIR."),
      valued("enable", "on|off", "Switch the feature on or off."),
      valued("save-time", "N",
             "The save time for --enable, --apply-block and --dialog; default: now."),
      flag("json", "Print JSON."),
  });
}

// Windows keeps the profile folder of each user itself; elsewhere the environment names it.
bool hasFixedProfile() {
  return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
}

}  // namespace

std::optional<Options> parseOptions(const QStringList& arguments) {
  QCommandLineParser parser;
  declareOptions(parser);
  if (!parser.parse(arguments)) return refuse(parser.errorText());
  Options options;
  if (parser.isSet(QStringLiteral("help"))) {
    // The parser itself would show it in a message box if Windows has no console.
    options.help = parser.helpText();
    return options;
  }
  if (!parser.positionalArguments().isEmpty()) {
    return refuse(QStringLiteral("unexpected argument: ") + parser.positionalArguments().first());
  }

  options.library = parser.value(QStringLiteral("library"));
  options.settings = parser.value(QStringLiteral("settings"));
  options.data = parser.value(QStringLiteral("data"));
  options.profile = parser.value(QStringLiteral("profile"));
  options.saveBlock = parser.value(QStringLiteral("save-block"));
  options.applyBlock = parser.value(QStringLiteral("apply-block"));
  options.block = parser.isSet(QStringLiteral("block"));
  options.pictures = parser.value(QStringLiteral("pictures"));
  options.dialog = parser.isSet(QStringLiteral("dialog"));
  options.json = parser.isSet(QStringLiteral("json"));
  if (!options.profile.isEmpty() && hasFixedProfile()) {
    return refuse(QStringLiteral("--profile cannot be given under Windows"));
  }
  if (options.settings.isEmpty()) return refuse(QStringLiteral("--settings FILE is needed"));

  if (parser.isSet(QStringLiteral("enable"))) {
    const QString value = parser.value(QStringLiteral("enable"));
    if (value != QLatin1String("on") && value != QLatin1String("off")) {
      return refuse(QStringLiteral("--enable takes on or off, not ") + value);
    }
    options.enable = value == QLatin1String("on");
  }

  options.saveTime = static_cast<std::uint32_t>(QDateTime::currentSecsSinceEpoch());
  if (parser.isSet(QStringLiteral("save-time"))) {
    bool isNumber = false;
    options.saveTime = parser.value(QStringLiteral("save-time")).toUInt(&isNumber);
    if (!isNumber) return refuse(QStringLiteral("--save-time takes a number from 0 to 4294967295"));
  }
  return options;
}
