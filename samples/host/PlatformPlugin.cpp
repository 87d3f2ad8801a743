#include "PlatformPlugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QOperatingSystemVersion>
#include <QStringList>
#include <algorithm>

namespace {

// Where Qt looks for it. Qt knows its folders only while there is an application object: a qt.conf
// beside the program may name them.
QStringList pluginFolders(int& argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QStringList folders;
  for (const QString& path : QCoreApplication::libraryPaths()) {
    folders += path + QStringLiteral("/platforms");
  }
  const QString own = qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH");
  if (!own.isEmpty()) folders += own;
  return folders;
}

// Debug builds of Qt append a "d" to the name.
bool hasPlugin(const QString& folder) {
  const QDir plugins(folder);
  return plugins.exists(QStringLiteral("qwindows.dll")) ||
         plugins.exists(QStringLiteral("qwindowsd.dll"));
}

}  // namespace

QString missingPlatformPlugin(int& argc, char** argv) {
  if (QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows ||
      qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    return {};
  }
  const QStringList folders = pluginFolders(argc, argv);
  const bool isThere = std::any_of(folders.begin(), folders.end(), hasPlugin);
  return isThere ? QString() : QStringLiteral("platforms\\qwindows.dll");
}
