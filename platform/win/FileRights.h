#pragma once

#include <memory>

#include "platform/Paths.h"

namespace brennet::platform {

// The user of this process, and rights for him alone.
class OwnRights {
 public:
  // Throws std::bad_alloc.
  OwnRights();
  ~OwnRights();
  OwnRights(const OwnRights&) = delete;
  OwnRights& operator=(const OwnRights&) = delete;

  // For whatever is created (SECURITY_ATTRIBUTES): the user owns it, even if this process is
  // elevated, and nobody else may do anything. Null if the user cannot be found out now; what is
  // created then gets the rights of its folder.
  [[nodiscard]] void* attributes() const;

  // Whether `path` is a folder, not a link to another, that belongs to the user of this process or
  // to the administrators, and that its access list opens to nobody else, except for those who may
  // do anything anyway: the system and the administrators. 0 if so; ERROR_ACCESS_DENIED if not, or
  // if not even that may be asked; else the error of the call that could not tell.
  [[nodiscard]] unsigned long check(const Path& path) const;

 private:
  struct Body;
  std::unique_ptr<Body> body_;
};

// Gives the open file (HANDLE) the access list of the file at `path`. If that fails, it keeps its
// own.
void copyFileRights(const Path& path, void* file);

}  // namespace brennet::platform
