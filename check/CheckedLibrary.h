#pragma once

#include <optional>

#include "check/ObjectPlace.h"
#include "check/Session.h"

namespace brennet::check {

// A library as the host sees it through the layer: the session, and the object that stays when the
// layer is unloaded.
class CheckedLibrary {
 public:
  // `library` outlives this object. See Findings for the others.
  CheckedLibrary(IBrennet& library, Findings::Write write, bool stops);
  ~CheckedLibrary();
  CheckedLibrary(const CheckedLibrary&) = delete;
  CheckedLibrary& operator=(const CheckedLibrary&) = delete;

  // What the host calls instead of the library.
  [[nodiscard]] IBrennet& object() { return *object_; }
  [[nodiscard]] const Session& session() const { return *session_; }

 private:
  bool stops_;
  ObjectPlace place_;
  IBrennet* object_;
  std::optional<Session> session_;
};

}  // namespace brennet::check
