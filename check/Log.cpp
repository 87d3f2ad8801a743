#include "check/Log.h"

#include <cstdio>

#include "platform/Runtime.h"

namespace brennet::check {

Log::Log() {
  const QString name = qEnvironmentVariable("BRENNET_CHECK_LOG");
  if (name.isEmpty()) return;
  file_.setFileName(name);
  if (!file_.open(QIODevice::Append | QIODevice::Unbuffered)) {
    write("cannot write to " + name.toStdString() + ": " + file_.errorString().toStdString());
  }
}

void Log::write(const std::string& line) {
  const std::string text = "BrennetCheck: " + line + "\n";
  const auto size = static_cast<qint64>(text.size());
  if (file_.isOpen() && file_.write(text.data(), size) == size) return;
  std::fputs(text.c_str(), stderr);
  std::fflush(stderr);
  platform::tellDebugger(text.c_str());
}

}  // namespace brennet::check
