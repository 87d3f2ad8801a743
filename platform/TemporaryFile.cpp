#include "platform/TemporaryFile.h"

#include "platform/TemporaryNames.h"

namespace brennet::platform {
namespace {

constexpr int kNames = 100;

}  // namespace

TemporaryFile::~TemporaryFile() {
  if (!isThere_) return;
  static_cast<void>(file_.close());
  static_cast<void>(retried(system_, patience_, [&] { return system_.remove(name_); }));
}

FileError TemporaryFile::create(const Path& path, OpenFor purpose) {
  FileError error;
  for (int number = 0; number < kNames; ++number) {
    name_ = temporaryName(path, system_.process(), number);
    error = file_.open(name_, purpose);
    isThere_ = !error;
    if (error.obstacle != Obstacle::Exists) break;
  }
  return error;
}

}  // namespace brennet::platform
