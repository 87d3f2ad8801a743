// The smallest real host: loads the library, hands over the player's files, exchanges blocks.
//
// Exit status: 0; 1 when the library refused something (standard error says what); 2 for bad usage.

#include <QApplication>
#include <QFile>
#include <QOperatingSystemVersion>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

#include "Catalogue.h"
#include "Dialog.h"
#include "Library.h"
#include "LoadMessages.h"
#include "Options.h"
#include "PlatformPlugin.h"
#include "Report.h"

namespace {

enum ExitStatus { kDone = 0, kRefused = 1, kBadUsage = 2 };

int badUsage(const QString& message) {
  std::fprintf(stderr, "brennet-host: %s\n", qPrintable(message));
  return kBadUsage;
}

// The block in `file`, or an empty array if it is not one: too short, or shorter than it says.
QByteArray readBlock(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray block = file.readAll();
  std::uint32_t size = 0;
  if (static_cast<std::size_t>(block.size()) < sizeof(size)) return {};
  std::memcpy(&size, block.constData(), sizeof(size));
  return size <= static_cast<std::uint32_t>(block.size()) ? block : QByteArray();
}

bool writeBlock(const QString& fileName, const brennet::HotkeyBlock& block) {
  QFile file(fileName);
  const auto size = static_cast<qint64>(sizeof(block));
  return file.open(QIODevice::WriteOnly) &&
         file.write(reinterpret_cast<const char*>(&block), size) == size && file.flush();
}

void load(brennet::IBrennet& brennet, const Options& options, Report& report) {
  const QString data = options.data;
  brennet.SetDataFolder(data.toStdWString().c_str());
  report.settings = options.settings;
  const LoadMessages messages;
  report.loaded = brennet.LoadSettings(options.settings.toStdWString().c_str());
  report.notUsed = messages.lines();
  if (!report.loaded) report.refusals += QStringLiteral("the settings file could not be loaded");
}

void change(brennet::IBrennet& brennet, const Options& options, QByteArray& returned,
            Report& report) {
  if (options.enable && !brennet.SetEnabled(*options.enable, options.saveTime)) {
    report.refusals += QStringLiteral(
        "the feature was not switched: it is so already, or the "
        "settings could not be saved");
  }
  if (returned.isEmpty()) return;
  auto* const block = reinterpret_cast<brennet::HotkeyBlock*>(returned.data());
  if (brennet.ApplyHotkeyBlock(block, options.saveTime) != 0) {
    report.refusals += QStringLiteral(
        "the block was not applied: nothing in it differs, or the "
        "settings could not be saved");
  }
}

void showDialog(brennet::IBrennet& brennet, const Options& options, Report& report) {
  const DialogEnd end = openDialog(brennet, options.saveTime);
  if (end == DialogEnd::Cancelled) std::fputs("The dialog was cancelled.\n", stderr);
  if (end == DialogEnd::Saved) std::fputs("The settings were saved.\n", stderr);
  if (end == DialogEnd::NotSaved) {
    report.refusals += QStringLiteral("the settings were confirmed, but could not be saved");
  }
}

void showWindows(brennet::IBrennet& brennet, const Options& options, Report& report) {
  if (options.dialog) showDialog(brennet, options, report);
  if (options.pictures.isEmpty()) return;
  const QStringList files = takePictures(brennet, options.pictures);
  for (const QString& file : files) std::fprintf(stderr, "A picture: %s\n", qPrintable(file));
  if (files.isEmpty()) report.refusals += QStringLiteral("no picture of the dialog was made");
}

bool isWindows() {
  return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
}

bool hasArgument(int argc, char** argv, const char* option) {
  const std::size_t length = std::strlen(option);
  return std::any_of(argv + 1, argv + argc, [&](const char* argument) {
    return std::strncmp(argument, option, length) == 0;
  });
}

// Windows need another kind of application object than the rest, and pictures need no screen; but
// on Windows only its own platform plugin has its fonts. Null, after a message, if windows cannot
// be opened.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
  const bool takesPictures = hasArgument(argc, argv, "--pictures");
  if (!takesPictures && !hasArgument(argc, argv, "--dialog")) {
    return std::make_unique<QCoreApplication>(argc, argv);
  }
  const QString missing = missingPlatformPlugin(argc, argv);
  if (!missing.isEmpty()) {
    badUsage(QStringLiteral("Missing beside this program: ") + missing);
    return nullptr;
  }
  if (takesPictures && !isWindows() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  return std::make_unique<QApplication>(argc, argv);
}

int run(const Options& options) {
  // The library finds the user's profile through the environment, so this comes first.
  const QTemporaryDir scratch;
  const QString profile = options.profile.isEmpty() ? scratch.path() : options.profile;
  qputenv("HOME", QFile::encodeName(profile));

  QByteArray returned;
  if (!options.applyBlock.isEmpty()) {
    returned = readBlock(options.applyBlock);
    if (returned.isEmpty()) return badUsage(options.applyBlock + QStringLiteral(": no block"));
  }
  const Library library(options.library);
  if (library.brennet() == nullptr) return badUsage(library.error());
  brennet::IBrennet& brennet = *library.brennet();

  Report report;
  Before before;
  before.gameSide = readGameSide();
  before.registryDefaults = readRegistryDefaults(options.data);
  load(brennet, options, report);
  before.block = filledBlock(brennet);
  change(brennet, options, returned, report);
  showWindows(brennet, options, report);
  fillReport(brennet, before, report);

  if (!options.saveBlock.isEmpty() && !writeBlock(options.saveBlock, report.block)) {
    return badUsage(options.saveBlock + QStringLiteral(": cannot be written"));
  }
  // Text for people is in the system's encoding, like the messages; JSON is UTF-8.
  const QByteArray text =
      options.json ? jsonReport(report) : textReport(report, options.block).toLocal8Bit();
  std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
  for (const QString& refusal : qAsConst(report.refusals)) {
    std::fprintf(stderr, "brennet-host: %s\n", qPrintable(refusal));
  }
  return report.refusals.isEmpty() ? kDone : kRefused;
}

}  // namespace

int main(int argc, char** argv) {
  const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
  if (application == nullptr) return kBadUsage;
  const Catalogue catalogue;
  const std::optional<Options> options = parseOptions(QCoreApplication::arguments());
  if (!options) return kBadUsage;
  if (!options->help.isEmpty()) {
    std::fputs(qPrintable(options->help), stdout);
    return kDone;
  }
  return run(*options);
}
