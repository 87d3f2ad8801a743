#include "check/Layer.h"

#include <QDir>
#include <QFileInfo>

#include "check/Rules.h"
#include "platform/Runtime.h"

namespace brennet::check {
namespace {

QString targetFile() {
  const QString named = qEnvironmentVariable("BRENNET_CHECK_TARGET");
  if (!named.isEmpty()) return QFileInfo(named).absoluteFilePath();
  const platform::Path own = platform::fileOfCode(reinterpret_cast<const void*>(&textOf));
  const QFileInfo beside(QString::fromStdU16String(own.u16string()));
  return beside.dir().absoluteFilePath(QStringLiteral(BRENNET_CHECKED_LIBRARY));
}

bool isOwn(QFunctionPointer function) {
  return platform::fileOfCode(reinterpret_cast<const void*>(function)) ==
         platform::fileOfCode(reinterpret_cast<const void*>(&textOf));
}

}  // namespace

Layer::Layer() {
  IBrennet* const checked = load();
  if (checked == nullptr) return;
  const bool stops = qEnvironmentVariable("BRENNET_CHECK") == QLatin1String("stop");
  log_.write("checks " + QDir::toNativeSeparators(target_.fileName()).toStdString());
  library_.emplace(*checked, [this](const std::string& line) { log_.write(line); }, stops);
}

Layer::~Layer() {
  library_.reset();
  if (platform::mayUnloadOthers()) target_.unload();
}

IBrennet* Layer::load() {
  target_.setFileName(targetFile());
  const QFunctionPointer function = target_.resolve("GetBrennetPtr");
  if (function == nullptr) {
    log_.write("there is nothing to check: " + target_.errorString().toStdString());
    return nullptr;
  }
  if (isOwn(function)) {
    target_.unload();
    log_.write("BRENNET_CHECK_TARGET names the checking layer; name the library itself");
    return nullptr;
  }
  return reinterpret_cast<GetBrennetPtrFunction>(function)();
}

}  // namespace brennet::check
