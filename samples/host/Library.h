#pragma once

#include <QLibrary>
#include <QString>
#include <memory>

#include <brennet/IBrennet.h>

// The Brennet library, loaded at run time. It stays loaded as long as the process runs, because
// the interface object lives in it.
class Library {
 public:
  // Loads the library from `file`, or from the program's own folder when `file` is empty.
  explicit Library(const QString& file);

  // The interface, or null; then error() says why.
  [[nodiscard]] brennet::IBrennet* brennet() const { return brennet_; }
  [[nodiscard]] QString error() const { return error_; }

 private:
  QLibrary library_;
  brennet::IBrennet* brennet_ = nullptr;
  QString error_;
};
