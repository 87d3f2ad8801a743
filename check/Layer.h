#pragma once

#include <QLibrary>

#include <optional>

#include "check/CheckedLibrary.h"
#include "check/Log.h"

namespace brennet::check {

// The checking layer in a process: the library that it checks, loaded beside it, and what it says of
// the host.
class Layer {
 public:
  // Loads the library that BRENNET_CHECK_TARGET names, or else the one beside this one. With
  // BRENNET_CHECK=stop the first finding ends the process.
  Layer();
  // Unloads that library, as the host does it with this one.
  ~Layer();
  Layer(const Layer&) = delete;
  Layer& operator=(const Layer&) = delete;

  // What GetBrennetPtr returns; null if there is no library to check, which the log says.
  [[nodiscard]] IBrennet* object() { return library_ ? &library_->object() : nullptr; }

 private:
  [[nodiscard]] IBrennet* load();

  Log log_;
  QLibrary target_;
  std::optional<CheckedLibrary> library_;
};

}  // namespace brennet::check
